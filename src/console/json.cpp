// Writing JSON.
#include "console/json.h"

#include <algorithm>

#include "engine/characters.h"
#include "format/value_writer.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

/// Bytes that are no UTF-8 become the character that stands for such.
constexpr std::string_view replacement = "\xEF\xBF\xBD";

void appendEscaped(std::string& output, char character) {
    constexpr char digits[] = "0123456789abcdef";
    constexpr char lastControl = 0x1F;
    if (character == '"' || character == '\\') {
        output += '\\';
        output += character;
    } else if (character >= 0 && character <= lastControl) {
        output += "\\u00";
        output += digits[character >> 4];
        output += digits[character & 0xF];
    } else {
        output += character;
    }
}

void appendString(std::string& output, std::string_view text) {
    output += '"';
    while (!text.empty()) {
        const auto character = firstUtf8Character(text);
        const std::size_t length = character ? character->length : 1;
        if (length == 1 && character) {
            appendEscaped(output, text.front());
        } else {
            output += character ? text.substr(0, length) : replacement;
        }
        text.remove_prefix(length);
    }
    output += '"';
}

void appendPart(std::string& output, std::string_view name, Real part) {
    constexpr NumericFormat automatic = defaultFormats[static_cast<std::size_t>(FormatKind::Automatic)];
    std::string digits;
    appendValueInFull(part, automatic & ~field::flags, 0, digits);
    std::ranges::replace(digits, markCharacter(TokenClass::DecimalMark), defaultDecimalMark);
    appendString(output, name);
    output += ':';
    appendString(output, digits);
}

void appendMember(std::string& output, std::string_view name, std::string_view text) {
    appendString(output, name);
    output += ':';
    appendString(output, text);
}

void appendError(std::string& output, const Answer& answer) {
    output += "\"error\":{\"code\":" + std::to_string(static_cast<std::uint32_t>(answer.error)) + ',';
    appendMember(output, "message", errorMessage(answer.error));
    output += ",\"position\":" + std::to_string(answer.position) + '}';
}

void appendResult(std::string& output, const Answer& answer) {
    output += "\"value\":{";
    appendPart(output, "re", answer.value.re);
    output += ',';
    appendPart(output, "im", answer.value.im);
    output += "},";
    appendMember(output, "answer", answer.text);
}

}  // namespace

void appendJson(std::string& output, std::string_view line, const Answer* answer, std::string_view hint) {
    output += '{';
    appendMember(output, "line", line);
    if (answer != nullptr) {
        output += ',';
        answer->failed ? appendError(output, *answer) : appendResult(output, *answer);
    }
    if (!hint.empty()) {
        output += ',';
        appendMember(output, "hint", hint);
    }
    output += '}';
}

}  // namespace calquo
