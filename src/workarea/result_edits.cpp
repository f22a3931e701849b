// A walk over a rich text that counts the characters it shows.
#include "workarea/result_edits.h"

#include <algorithm>
#include <utility>

#include "engine/characters.h"
#include "workarea/rich_text_writer.h"

namespace calquo {
namespace {

/// Beyond any number that a writer gives to a font.
constexpr std::string_view fontNumber = "9999";

class Walk {
public:
    Walk(std::string_view text, const std::vector<ResultEdit>& edits, const ResultLook& look)
        : text_(text), edit_(edits.begin()), lastEdit_(edits.end()), look_(look) {}

    void run() {
        while (place_ < text_.size()) {
            step();
        }
    }

    std::size_t shown() const { return shown_; }
    bool hasPlacedAll() const { return edit_ == lastEdit_; }
    std::string take() { return std::move(output_); }

private:
    void step() {
        const char character = text_[place_];
        if (character == '{' && text_.substr(place_).starts_with("{\\fonttbl")) {
            takeFonts();
        } else if (character == '{' && text_.substr(place_).starts_with("{\\colortbl")) {
            takeColors();
        } else if (character == '\\') {
            takeControl();
        } else if (character == '{' || character == '}' || character == '\r' || character == '\n') {
            keep(1);
        } else {
            show(1);
        }
    }

    void takeFonts() {
        keep(lengthOfGroup() - 1);
        output_ += "{\\f" + std::string(fontNumber) + "\\fnil " + look_.font + ";}";
        keep(1);
        if (!text_.substr(place_).starts_with("{\\colortbl")) {
            output_ += "{\\colortbl;" + colorEntry() + "}";
            color_ = 1;
        }
    }

    void takeColors() {
        const std::size_t length = lengthOfGroup();
        const std::string_view table = text_.substr(place_, length);
        // The first entry, number 0, is the automatic colour.
        color_ = static_cast<std::size_t>(std::ranges::count(table, ';'));
        keep(length - 1);
        output_ += colorEntry();
        keep(1);
    }

    std::string colorEntry() const {
        return "\\red" + std::to_string(look_.red) + "\\green" + std::to_string(look_.green) + "\\blue" +
               std::to_string(look_.blue) + ";";
    }

    /// Of the group that begins here, with its braces.
    std::size_t lengthOfGroup() const {
        int depth = 0;
        for (std::size_t end = place_; end < text_.size(); ++end) {
            depth += text_[end] == '{' ? 1 : text_[end] == '}' ? -1 : 0;
            if (depth == 0) {
                return end - place_ + 1;
            }
        }
        return text_.size() - place_;
    }

    void takeControl() {
        const char first = characterAt(text_, place_ + 1);
        if (!isLetter(first)) {
            return show(first == '\'' ? 4 : 2);
        }
        std::size_t end = place_ + 1;
        while (isLetter(characterAt(text_, end))) {
            ++end;
        }
        const std::string_view word = text_.substr(place_ + 1, end - place_ - 1);
        end += characterAt(text_, end) == '-' ? 1 : 0;
        while (isDecimalDigit(characterAt(text_, end))) {
            ++end;
        }
        end += characterAt(text_, end) == ' ' ? 1 : 0;
        if (word == "u") {
            show(end + 1 - place_);  // with the character for readers without Unicode
        } else if (word == "par" || word == "tab") {
            show(end - place_);
        } else {
            keep(end - place_);
        }
    }

    void keep(std::size_t length) {
        output_ += text_.substr(place_, length);
        place_ += length;
    }

    /// The next bytes show a character.
    void show(std::size_t length) {
        if (edit_ != lastEdit_ && shown_ == edit_->begin) {
            writeResult();
        }
        ++shown_;
        if (edit_ == lastEdit_ || shown_ <= edit_->begin) {
            keep(length);
            return;
        }
        place_ += length;
        edit_ += shown_ == edit_->end ? 1 : 0;
    }

    void writeResult() {
        output_ += "{\\plain\\f" + std::string(fontNumber) + "\\fs" + std::to_string(look_.halfPoints) +
                   (look_.bold ? "\\b" : "") + "\\cf" + std::to_string(color_) + ' ';
        for (const char character : edit_->result) {
            constexpr char firstBeyondAscii = '\x7F';
            if (static_cast<unsigned char>(character) >= static_cast<unsigned char>(firstBeyondAscii)) {
                appendByNumber(output_, static_cast<unsigned char>(character));
                continue;
            }
            output_ += character == '\\' || character == '{' || character == '}' ? "\\" : "";
            output_ += character;
        }
        output_ += '}';
    }

    std::string_view text_;
    std::size_t place_ = 0;
    std::vector<ResultEdit>::const_iterator edit_, lastEdit_;
    const ResultLook& look_;
    std::size_t color_ = 0;
    std::size_t shown_ = 0;
    std::string output_;
};

}  // namespace

std::optional<std::string> withResults(std::string_view richText, std::size_t length,
                                       const std::vector<ResultEdit>& edits, const ResultLook& look) {
    Walk walk(richText, edits, look);
    walk.run();
    return walk.shown() == length && walk.hasPlacedAll() ? std::optional(walk.take()) : std::nullopt;
}

}  // namespace calquo
