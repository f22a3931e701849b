// The table of the characters. Those of wide type and of mathematical alphabets are computed.
#include "workarea/pasted_characters.h"

#include <algorithm>
#include <string_view>

namespace calquo {
namespace {

struct CharacterRow {
    char32_t first;
    char32_t last;
    PastedKind kind;
    std::string_view text;
};

using enum PastedKind;

constexpr CharacterRow characterRows[] = {
    // Blanks, and what takes no room.
    {0xA0, 0xA0, NoBreakBlank, " "},
    {0xAD, 0xAD, Text, ""},  // soft hyphen
    {0xB0, 0xB0, Degrees, "deg"},
    {0xB2, 0xB2, Superscript, "2"},
    {0xB3, 0xB3, Superscript, "3"},
    {0xB4, 0xB4, Text, "'"},
    {0xB7, 0xB7, Dot, "*"},
    {0xB9, 0xB9, Superscript, "1"},
    {0xBC, 0xBC, Fraction, "1/4"},
    {0xBD, 0xBD, Fraction, "1/2"},
    {0xBE, 0xBE, Fraction, "3/4"},
    {0xD7, 0xD7, Text, "*"},
    {0xF7, 0xF7, Text, "/"},
    {0x2BC, 0x2BC, Text, "'"},
    {0x2C6, 0x2C6, Text, "^"},
    {0x2D7, 0x2D7, Text, "-"},
    {0x34F, 0x34F, Text, ""},
    {0x3C0, 0x3C0, Name, "pi"},
    {0x61C, 0x61C, Text, ""},
    {0x1680, 0x1680, Text, " "},
    {0x180E, 0x180E, Text, ""},
    {0x2000, 0x2006, Text, " "},
    {0x2007, 0x2009, NoBreakBlank, " "},  // of a figure's or point's width, and thin
    {0x200A, 0x200A, Text, " "},
    {0x200B, 0x200F, Text, ""},
    {0x2010, 0x2015, Dash, "-"},
    {0x2018, 0x201B, Text, "'"},
    {0x201C, 0x201F, Text, "\""},
    {0x2022, 0x2022, Dot, "*"},
    {0x202A, 0x202E, Text, ""},
    {0x202F, 0x202F, NoBreakBlank, " "},
    {0x2044, 0x2044, Text, "/"},
    {0x204E, 0x204E, Text, "*"},
    {0x205F, 0x205F, Text, " "},
    {0x2060, 0x2061, Text, ""},
    {0x2062, 0x2062, Text, " "},  // invisible times
    {0x2063, 0x2063, Text, ""},
    {0x2064, 0x2064, Text, "+"},
    {0x2066, 0x206F, Text, ""},
    {0x2070, 0x2070, Superscript, "0"},
    {0x2074, 0x2074, Superscript, "4"},
    {0x2075, 0x2075, Superscript, "5"},
    {0x2076, 0x2076, Superscript, "6"},
    {0x2077, 0x2077, Superscript, "7"},
    {0x2078, 0x2078, Superscript, "8"},
    {0x2079, 0x2079, Superscript, "9"},
    {0x207A, 0x207A, Superscript, "+"},
    {0x207B, 0x207B, Superscript, "-"},
    {0x2080, 0x2080, Text, "0"},
    {0x2081, 0x2081, Text, "1"},
    {0x2082, 0x2082, Text, "2"},
    {0x2083, 0x2083, Text, "3"},
    {0x2084, 0x2084, Text, "4"},
    {0x2085, 0x2085, Text, "5"},
    {0x2086, 0x2086, Text, "6"},
    {0x2087, 0x2087, Text, "7"},
    {0x2088, 0x2088, Text, "8"},
    {0x2089, 0x2089, Text, "9"},
    {0x2103, 0x2103, Name, "C"},
    {0x2109, 0x2109, Name, "F"},
    {0x210E, 0x210E, Text, "h"},
    {0x212A, 0x212A, Text, "K"},
    {0x2153, 0x2153, Fraction, "1/3"},
    {0x2154, 0x2154, Fraction, "2/3"},
    {0x2155, 0x2155, Fraction, "1/5"},
    {0x2156, 0x2156, Fraction, "2/5"},
    {0x2157, 0x2157, Fraction, "3/5"},
    {0x2158, 0x2158, Fraction, "4/5"},
    {0x2159, 0x2159, Fraction, "1/6"},
    {0x215A, 0x215A, Fraction, "5/6"},
    {0x215B, 0x215B, Fraction, "1/8"},
    {0x215C, 0x215C, Fraction, "3/8"},
    {0x215D, 0x215D, Fraction, "5/8"},
    {0x215E, 0x215E, Fraction, "7/8"},
    {0x2192, 0x2192, Text, "->"},
    {0x2212, 0x2212, Text, "-"},
    {0x2215, 0x2215, Text, "/"},
    {0x2217, 0x2217, Text, "*"},
    {0x2219, 0x2219, Dot, "*"},
    {0x221A, 0x221A, Name, "sqrt"},
    {0x221B, 0x221B, Name, "cbrt"},
    {0x221E, 0x221E, Name, "inf"},
    {0x2236, 0x2236, Text, "/"},
    {0x22C5, 0x22C5, Dot, "*"},
    {0x2715, 0x2716, Text, "*"},
    {0x2794, 0x2794, Text, "->"},
    {0x2795, 0x2795, Text, "+"},
    {0x2796, 0x2796, Text, "-"},
    {0x2797, 0x2797, Text, "/"},
    {0x279C, 0x279C, Text, "->"},
    {0x27F6, 0x27F6, Text, "->"},
    {0x29F8, 0x29F8, Text, "/"},
    {0x2A2F, 0x2A2F, Text, "*"},
    {0x3000, 0x3000, Text, " "},
    {0xFE00, 0xFE0F, Text, ""},  // which of its looks a character has
    {0xFE58, 0xFE58, Dash, "-"},
    {0xFE61, 0xFE61, Text, "*"},
    {0xFE62, 0xFE62, Text, "+"},
    {0xFE63, 0xFE63, Text, "-"},
    {0xFE66, 0xFE66, Text, "="},
    {0xFEFF, 0xFEFF, Text, ""},
};

static_assert(std::ranges::is_sorted(characterRows, {}, &CharacterRow::first));

bool isWithin(char32_t code, char32_t first, char32_t last) { return code >= first && code <= last; }

PastedCharacter letterOrDigit(char32_t first, char32_t place) {
    return {Text, std::string(1, static_cast<char>(first + place))};
}

/// A character of the mathematical alphabets: 13 times A to Z and a to z, five times the Greek letters, of which pi
/// alone is in the language, and five times the digits.
PastedCharacter mathematicalCharacter(char32_t code) {
    constexpr char32_t latin = 0x1D400, greek = 0x1D6A8, digits = 0x1D7CE;
    constexpr char32_t letters = 26, lettersOfGreek = 58, smallPi = 41;
    if (code >= digits) {
        return letterOrDigit('0', (code - digits) % 10);
    }
    if (code >= latin + 13 * 2 * letters && code < greek) {
        return {};
    }
    if (code >= greek) {
        return (code - greek) % lettersOfGreek == smallPi ? PastedCharacter{Name, "pi"} : PastedCharacter{};
    }
    const char32_t place = (code - latin) % (2 * letters);
    return place < letters ? letterOrDigit('A', place) : letterOrDigit('a', place - letters);
}

}  // namespace

PastedCharacter pastedCharacter(char32_t code) {
    constexpr char32_t firstWide = 0xFF01, lastWide = 0xFF5E;
    constexpr char32_t firstMathematical = 0x1D400, lastMathematical = 0x1D7FF;
    if (isWithin(code, firstWide, lastWide)) {
        return letterOrDigit('!', code - firstWide);
    }
    if (isWithin(code, firstMathematical, lastMathematical)) {
        return mathematicalCharacter(code);
    }
    if (code < characterRows[0].first) {
        return {};
    }
    const auto* const after = std::ranges::upper_bound(characterRows, code, {}, &CharacterRow::first);
    const CharacterRow& row = *(after - 1);
    return code <= row.last ? PastedCharacter{row.kind, std::string(row.text)} : PastedCharacter{};
}

}  // namespace calquo
