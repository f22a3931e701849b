// The first characters of operands; see carried_result.h.
#include "workarea/carried_result.h"

#include "engine/characters.h"

namespace calquo {
namespace {

/// The units from one to another.
struct UnitRange {
    wchar_t first, last;
};

/// Beyond ASCII: what people write as operators and punctuation, and with what they go on therefore, lies in these.
constexpr UnitRange continuations[] = {
    {0x80, 0xA1},      // no-break blank and the inverted exclamation mark
    {0xA6, 0xA9},      // bars, section and copyright signs
    {0xAB, 0xB4},      // quotation marks, degree, plus-minus, superscript digits
    {0xB6, 0xB9},      // the middle dot, a superscript digit
    {0xBB, 0xBF},      // quotation mark, fractions
    {0xD7, 0xD7},      // multiplication
    {0xF7, 0xF7},      // division
    {0x2B0, 0x2FF},    // small marks, like "^" and "-" among letters
    {0x1680, 0x1680},  // a blank
    {0x2000, 0x209F},  // blanks, dashes, superscripts and subscripts
    {0x2190, 0x2219},  // arrows, operators
    {0x221B, 0x221D},  // operators after the square root
    {0x221F, 0x2BFF},  // operators after infinity, and pictures
    {0x3000, 0x3004},  // blanks and punctuation of the Far East
    {0xFE50, 0xFE58},  // small forms, but for "("
    {0xFE5A, 0xFE6F},  // the same after "("
    {0xFF01, 0xFF03},  // full width: "!" to "#"
    {0xFF05, 0xFF07},  // "%" to "'"
    {0xFF09, 0xFF0F},  // ")" to "/"
    {0xFF1A, 0xFF20},  // ":" to "@"
    {0xFF3B, 0xFF40},  // "[" to "`"
    {0xFF5B, 0xFF60},  // "{" to "~", and parentheses of another kind
};

bool continues(wchar_t unit) {
    for (const UnitRange range : continuations) {
        if (unit >= range.first && unit <= range.last) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool beginsOperand(std::wstring_view text) {
    constexpr wchar_t endOfAscii = 0x80;
    if (text.empty()) {
        return false;
    }
    const wchar_t unit = text.front();
    const auto is = [&](TokenClass mark) {
        return unit == static_cast<wchar_t>(static_cast<unsigned char>(markCharacter(mark)));
    };
    if (is(TokenClass::DecimalMark) || is(TokenClass::ListOpen)) {
        return true;
    }
    if (unit < endOfAscii) {
        return isNameCharacter(static_cast<char>(unit)) || unit == L'$';
    }
    return !is(TokenClass::GroupMark) && !continues(unit);
}

}  // namespace calquo
