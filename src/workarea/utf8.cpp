// The bit patterns of UTF-8 and UTF-16.
#include "workarea/utf8.h"

#include <algorithm>

namespace calquo {
namespace {

/// A first byte tells how many follow it, of which each has six bits of the character.
struct LeadRow {
    unsigned mask;
    unsigned pattern;
    std::size_t following;
    char32_t smallest;  ///< A smaller character has a shorter encoding.
};
constexpr LeadRow leadRows[] = {
    {0x80, 0x00, 0, 0x0},
    {0xE0, 0xC0, 1, 0x80},
    {0xF0, 0xE0, 2, 0x800},
    {0xF8, 0xF0, 3, 0x10000},
};
constexpr unsigned bitsInFollower = 6;

constexpr bool isSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

}  // namespace

std::optional<UtfCharacter> firstUtf8Character(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    const auto row = std::find_if(std::begin(leadRows), std::end(leadRows), [&](const LeadRow& candidate) {
        return (lead & candidate.mask) == candidate.pattern;
    });
    if (row == std::end(leadRows) || bytes.size() <= row->following) {
        return std::nullopt;
    }
    char32_t code = lead & ~row->mask;
    for (std::size_t index = 1; index <= row->following; ++index) {
        const auto follower = static_cast<unsigned char>(bytes[index]);
        if ((follower & 0xC0) != 0x80) {
            return std::nullopt;
        }
        code = code << bitsInFollower | (follower & 0x3F);
    }
    const bool valid = code >= row->smallest && code < 0x110000 && !isSurrogate(code);
    return valid ? std::optional(UtfCharacter{code, row->following + 1}) : std::nullopt;
}

UtfCharacter firstUtf16Character(std::u16string_view units) {
    constexpr char32_t replacement = 0xFFFD;
    const auto isWithin = [](char16_t unit, char32_t first) { return unit >= first && unit < first + 0x400; };
    const char16_t unit = units.front();
    if (isWithin(unit, 0xD800) && units.size() > 1 && isWithin(units[1], 0xDC00)) {
        return {0x10000 + ((unit & 0x3FFu) << 10 | (units[1] & 0x3FFu)), 2};
    }
    return {isSurrogate(unit) ? replacement : unit, 1};
}

void appendUtf8(std::string& bytes, char32_t code) {
    const LeadRow* row = std::end(leadRows) - 1;
    while (code < row->smallest) {
        --row;
    }
    bytes += static_cast<char>(row->pattern | code >> bitsInFollower * row->following);
    for (std::size_t left = row->following; left > 0; --left) {
        bytes += static_cast<char>(0x80 | (code >> bitsInFollower * (left - 1) & 0x3F));
    }
}

void appendUtf16(std::u16string& units, char32_t code) {
    if (code < 0x10000) {
        units += static_cast<char16_t>(code);
    } else {
        units += static_cast<char16_t>(0xD7C0 + (code >> 10));
        units += static_cast<char16_t>(0xDC00 | (code & 0x3FF));
    }
}

}  // namespace calquo
