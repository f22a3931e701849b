// Turns UTF-8 into character numbers.
#include "workarea/rich_text.h"

#include <algorithm>

#include "workarea/rich_text_writer.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr std::string_view utf8Signature = "{\\urtf";

}  // namespace

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
            appendByte(text, static_cast<unsigned char>(byte));
            controlText.remove_prefix(1);
        }
    }
    return text;
}

}  // namespace calquo
