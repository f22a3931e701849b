// Which characters are control characters, and how they are shown.
#include "workarea/visible_text.h"

#include <algorithm>

#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr bool isControl(char32_t code) {
    constexpr char32_t firstPrintable = 0x20;
    constexpr char32_t rubOut = 0x7F;
    constexpr char32_t afterControls = 0xA0;
    return (code < firstPrintable && code != U'\n' && code != U'\t') || (code >= rubOut && code < afterControls);
}

void appendByNumber(std::string& text, char byte) {
    constexpr char digits[] = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(byte);
    text += "\\x";
    text += digits[code >> 4];
    text += digits[code & 0xF];
}

}  // namespace

std::string visibleText(std::string_view text) {
    std::string visible;
    visible.reserve(text.size());
    while (!text.empty()) {
        const auto character = firstUtf8Character(text);
        const std::string_view bytes = text.substr(0, character ? character->length : 1);
        if (character && !isControl(character->code)) {
            visible += bytes;
        } else {
            for (const char byte : bytes) {
                appendByNumber(visible, byte);
            }
        }
        text.remove_prefix(bytes.size());
    }
    return visible;
}

std::string indentTo(std::string_view line, std::size_t position) {
    std::string indent;
    for (const char character : visibleText(line.substr(0, position))) {
        const bool continuesCharacter = (static_cast<unsigned char>(character) & 0xC0) == 0x80;
        if (!continuesCharacter) {
            indent += character == '\t' ? '\t' : ' ';
        }
    }
    return indent;
}

std::string lineWithCaret(std::string_view line, std::size_t position) {
    return visibleText(line) + '\n' + indentTo(line, position) + "^\n";
}

}  // namespace calquo
