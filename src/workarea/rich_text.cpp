// A scanner for the structure of rich text: groups, control words and characters.
#include "workarea/rich_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "engine/characters.h"
#include "workarea/file_fault.h"
#include "workarea/text_cost.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr std::string_view signature = "{\\rtf";
constexpr std::string_view utf8Signature = "{\\urtf";
constexpr int deepestNesting = 32;

[[noreturn]] void fail(FileFailure failure) { throw FileFault{failure, {}}; }

/// Control words whose groups hold other things than shown text.
constexpr std::string_view hiddenDestinations[] = {"fonttbl", "colortbl", "stylesheet", "info", "pict", "object"};
/// Control words that end a line of the shown text.
constexpr std::string_view lineEnds[] = {"par", "line", "row", "sect", "page"};

/// Goes over a rich text once, from its first brace to the matching one.
class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    void scan(std::uint64_t mostCost) {
        do {
            step();
        } while (depth_ > 0);
        cost_.endLine();
        if (cost_.total() > mostCost) {
            fail(FileFailure::TooMuchText);
        }
    }

    std::size_t end() const { return place_; }
    /// The control word that ends the last line, if nothing that is shown follows it; else an empty range.
    std::size_t lastEndBegin() const { return lastEndBegin_; }
    std::size_t lastEndLength() const { return lastEndLength_; }

private:
    void step() {
        switch (take()) {
            case '{':
                if (++depth_ > deepestNesting) {
                    fail(FileFailure::NestedTooDeeply);
                }
                break;
            case '}':
                if (depth_-- == hiddenDepth_) {
                    hiddenDepth_ = 0;
                }
                break;
            case '\\':
                takeControl();
                break;
            case '\r':
            case '\n':
            case '\0':
                break;
            default:
                showCharacter();
        }
    }

    char take() {
        if (place_ == text_.size()) {
            fail(FileFailure::CutOff);
        }
        return text_[place_++];
    }

    void takeControl() {
        const std::size_t begin = place_ - 1;
        const char first = take();
        if (isLetter(first)) {
            takeWord(begin);
        } else if (first == '*') {
            hideGroup();
        } else if (first == '\r' || first == '\n') {
            endLine(begin);
        } else {
            showCharacter();
        }
    }

    void takeWord(std::size_t begin) {
        const auto skipWhile = [&](bool (*fits)(char)) {
            while (place_ < text_.size() && fits(text_[place_])) {
                ++place_;
            }
        };
        skipWhile(isLetter);
        const std::string_view word = text_.substr(begin + 1, place_ - begin - 1);
        if (place_ + 1 < text_.size() && text_[place_] == '-' && isDecimalDigit(text_[place_ + 1])) {
            ++place_;
        }
        const char* const number = text_.data() + place_;
        skipWhile(isDecimalDigit);
        const char* const numberEnd = text_.data() + place_;
        std::size_t count = text_.size();  // more than follow, where the number is too large to be read
        std::from_chars(number, numberEnd, count);
        if (place_ < text_.size() && text_[place_] == ' ') {
            ++place_;
        }
        if (word == "bin" && number != numberEnd) {
            skipBytes(count);
        } else if (std::ranges::find(hiddenDestinations, word) != std::end(hiddenDestinations)) {
            hideGroup();
        } else if (std::ranges::find(lineEnds, word) != std::end(lineEnds)) {
            endLine(word == "par" ? begin : place_);
        } else if (hiddenDepth_ == 0) {
            forgetLastEnd();
        }
    }

    /// Bytes of a picture, which may look like anything.
    void skipBytes(std::size_t count) {
        if (count > text_.size() - place_) {
            fail(FileFailure::CutOff);
        }
        place_ += count;
    }

    void hideGroup() {
        if (hiddenDepth_ == 0) {
            hiddenDepth_ = depth_;
        }
    }

    void showCharacter() {
        if (hiddenDepth_ == 0) {
            cost_.addCharacter();
            forgetLastEnd();
        }
    }

    void endLine(std::size_t begin) {
        if (hiddenDepth_ == 0) {
            cost_.endLine();
            lastEndBegin_ = begin;
            lastEndLength_ = place_ - begin;
        }
    }

    void forgetLastEnd() { lastEndLength_ = 0; }

    std::string_view text_;
    std::size_t place_ = 0;
    int depth_ = 0;
    int hiddenDepth_ = 0;  // of the outermost group that is not shown; 0 outside of any
    TextCost cost_;
    std::size_t lastEndBegin_ = 0;
    std::size_t lastEndLength_ = 0;
};

/// Appends each UTF-16 unit of a character by its number, followed by the question mark that readers without Unicode
/// show instead.
void appendByNumber(std::string& text, char32_t code) {
    std::u16string units;
    appendUtf16(units, code);
    for (const char16_t unit : units) {
        text += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + '?';
    }
}

/// Appends a byte of the control's code page.
void appendByte(std::string& text, char byte) {
    constexpr char digits[] = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(byte);
    text += "\\'";
    text += digits[code >> 4];
    text += digits[code & 0xF];
}

}  // namespace

std::string richTextToRead(std::string_view bytes, std::uint64_t mostCost) {
    if (!bytes.starts_with(signature) || (bytes.size() > signature.size() && isLetter(bytes[signature.size()]))) {
        fail(FileFailure::NotRichText);
    }
    Scanner scanner(bytes);
    scanner.scan(mostCost);
    std::string text(bytes.substr(0, scanner.end()));
    text.erase(scanner.lastEndBegin(), scanner.lastEndLength());
    return text;
}

std::string richTextToWrite(std::string_view controlText) {
    while (controlText.ends_with('\0')) {
        controlText.remove_suffix(1);
    }
    std::string text;
    text.reserve(controlText.size());
    if (controlText.starts_with(utf8Signature)) {
        const std::size_t version = controlText.find_first_not_of("0123456789", utf8Signature.size());
        controlText.remove_prefix(std::min(version, controlText.size()));
        text = "{\\rtf1\\ansi";
    }
    while (!controlText.empty()) {
        const char byte = controlText.front();
        if (static_cast<unsigned char>(byte) < 0x80) {
            text += byte;
            controlText.remove_prefix(1);
        } else if (const auto character = firstUtf8Character(controlText)) {
            appendByNumber(text, character->code);
            controlText.remove_prefix(character->length);
        } else {
            appendByte(text, byte);
            controlText.remove_prefix(1);
        }
    }
    return text;
}

}  // namespace calquo
