// Any characters as pasted text: lines end in one way, control characters go, and what is typed in the language's own
// characters stays as it is.
#include "workarea/pasted_text.h"

#include <algorithm>

#include "target.h"
#include "workarea/carried_result.h"
#include "workarea/line_breaks.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

/// What a web page or a word processor may put for characters of the language.
constexpr std::u16string_view foreign =
    u"\x2212\x2013\x2014\xD7\xF7\x22C5\xB7\x2215\x2044\xA0\x2009\x202F\x200B\xFF11\xFF0B\xB2\xB3\xB9\x2070\x2074\x207B"
    u"\x2018\x2019\x201C\x201D\xBD\x2028\x2029\x85\v\f\t\r\xAD\xFEFF\x3000";

/// ASCII as it is, and other bytes as foreign characters, or as any at all.
std::u16string textFrom(InputReader& reader) {
    std::u16string text;
    while (!reader.isAtEnd()) {
        const std::uint8_t byte = reader.byte();
        if (byte < 0x80) {
            text += static_cast<char16_t>(byte);
        } else {
            text += byte < 0xF8 ? foreign[byte % foreign.size()] : static_cast<char16_t>(reader.number(2));
        }
    }
    return text;
}

bool isPlain(char16_t unit) { return (unit >= u' ' && unit <= u'~') || unit == u'\n'; }

void check(FuzzInput input) {
    InputReader reader(input);
    const std::u16string text = textFrom(reader);
    const std::u16string read = pastedText(text);
    require(std::ranges::none_of(read, [](char16_t unit) { return unit != u'\n' && breaksLine(unit); }),
            "a line ends in another way");
    require(std::ranges::none_of(read, [](char16_t unit) { return unit < u' ' && unit != u'\n' && unit != u'\t'; }),
            "a control character is left");
    for (const char16_t unit : text) {
        const std::u16string meant = pastedText(std::u16string_view(&unit, 1));
        const bool goesOn = !meant.empty() && std::u16string_view(u"+-*/^ ;)").find(meant.front()) != meant.npos;
        const bool begins = beginsOperand(std::wstring(1, static_cast<wchar_t>(unit)));
        require(!goesOn || !begins, "what is pasted as an operator begins anew");
        require(begins || unit < u'\x3B1' || unit > u'\x3C9', "a letter of Greek goes on");
    }
    require(!std::ranges::all_of(text, isPlain) || read == text, "plain characters are changed");
}

const Target target("pasted_text", check);

}  // namespace
}  // namespace calquo
