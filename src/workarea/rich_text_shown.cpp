// Holds back what depends on the next character: a line end, the cells of a table, half of a surrogate pair.
#include "workarea/rich_text_shown.h"

#include "workarea/file_fault.h"
#include "workarea/line_breaks.h"

namespace calquo {
namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool isControl(char32_t code) { return code < U' ' || code == 0x7F; }
constexpr bool isFirstSurrogate(char32_t code) { return code >= 0xD800 && code < 0xDC00; }
constexpr bool isSecondSurrogate(char32_t code) { return code >= 0xDC00 && code < 0xE000; }

}  // namespace

void ShownText::add(const Look& look, std::string_view characters) {
    begin(look);
    for (const char character : characters) {
        cost_.add(static_cast<unsigned char>(character));
    }
    writer_.add(look.characters, characters);
}

void ShownText::addByte(const Look& look, unsigned char byte) {
    if (byte < ' ') {
        addCharacter(look, byte);
    } else if (!isControl(byte)) {
        begin(look);
        cost_.add(byte);
        writer_.addByte(look.characters, byte);
    }
}

void ShownText::addCharacter(const Look& look, char32_t code) {
    if (breaksLine(code)) {
        endLine(look);
    } else if (code == U'\t') {
        begin(look);
        cost_.add(U'\t');
        writer_.addTab(look.characters);
    } else if (isControl(code)) {
        return;
    } else if (code < 0x80) {
        const char character = static_cast<char>(code);
        add(look, {&character, 1});
    } else if (isFirstSurrogate(code)) {
        begin(look);
        surrogate_ = code;
    } else if (isSecondSurrogate(code) && surrogate_ != 0) {
        const char32_t whole = 0x1'0000 + ((surrogate_ & 0x3FF) << 10 | (code & 0x3FF));
        surrogate_ = 0;
        cost_.add(whole, 2);
        writer_.addCharacter(look_.characters, whole);
    } else {
        begin(look);
        cost_.add(code, code < 0x1'0000 ? 1 : 2);
        writer_.addCharacter(look.characters, isSecondSurrogate(code) ? replacement : code);
    }
}

void ShownText::endLine(const Look& look) {
    settle();
    cells_ = 0;
    look_ = look;
    hasLineEnded_ = true;
    count();
}

std::string ShownText::finish(const RichTextWriter::Header& header, bool keepsLastLineEnd) {
    hasLineEnded_ = hasLineEnded_ && keepsLastLineEnd;
    settle();
    count();
    return writer_.finish(header, look_.paragraph);
}

/// Writes what has waited for the character that is to follow in this look.
void ShownText::begin(const Look& look) {
    settle();
    refuseTooMuch();
    look_ = look;
    for (; cells_ > 0; --cells_) {
        cost_.add(U'\t');
        writer_.addTab(look.characters);
    }
}

void ShownText::settle() {
    settleSurrogate();
    if (hasLineEnded_) {
        hasLineEnded_ = false;
        writer_.endParagraph(look_.characters, look_.paragraph);
    }
}

/// Half of a pair is no character.
void ShownText::settleSurrogate() {
    if (surrogate_ != 0) {
        surrogate_ = 0;
        cost_.add(replacement);
        writer_.addCharacter(look_.characters, replacement);
    }
}

void ShownText::count() {
    cost_.endLine();
    refuseTooMuch();
}

/// Soon, where a line is too long, and not at its end.
void ShownText::refuseTooMuch() const {
    if (cost_.total() > mostCost_) {
        throw FileFault{FileFailure::TooMuchText, {}};
    }
}

}  // namespace calquo
