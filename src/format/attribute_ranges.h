// What the attributes of a format may be: the range of each letter, and whether a stored word keeps to them.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "format/numeric_format.h"

namespace calquo {

/// The numbers that a user may choose for an attribute, both ends included. A field may be too narrow for the largest.
struct AttributeRange {
    std::uint32_t smallest;
    std::uint32_t largest;
};

/// The range of an attribute's letter in a kind of format; 0 to 1 for the letters that are either on or off.
constexpr AttributeRange rangeOfLetter(FormatKind kind, char letter) {
    switch (letter) {
        case 'G':
            return {2, 8};
        case 'D': {
            const bool ofDenominator = kind == FormatKind::Rational || kind == FormatKind::Fractional;
            return {ofDenominator ? 1u : 0u, 15};
        }
        case 'T':
            return {0, 4};
        case 'S':
            return {1, 64};
        case 'X':
            return {2, 15};
        default:
            return {0, 1};
    }
}

/// Whether a word is one of the given kind, with its reserved bits 0 and every attribute of the kind in its range.
constexpr bool isWellFormed(NumericFormat word, FormatKind kind) {
    constexpr NumericFormat reserved = 0x180;
    if (getField(word, field::kind) != static_cast<std::uint32_t>(kind) || (word & reserved) != 0) {
        return false;
    }
    const std::string_view letters = formatKinds[static_cast<std::size_t>(kind)].letters;
    return std::all_of(letters.begin(), letters.end(), [&](char letter) {
        const std::uint32_t value = getField(word, fieldOfLetter(letter));
        const AttributeRange range = rangeOfLetter(kind, letter);
        return value >= range.smallest && value <= range.largest;
    });
}

static_assert([] {
    for (std::uint32_t kind = 0; kind < defaultFormats.size(); ++kind) {
        if (!isWellFormed(defaultFormats[kind], static_cast<FormatKind>(kind))) {
            return false;
        }
    }
    return true;
}());

}  // namespace calquo
