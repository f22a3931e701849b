// The attributes of the formats: the one table of their letters, with the field, the control, the label and the range
// of each, and whether a stored word keeps to it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "engine/characters.h"
#include "format/numeric_format.h"

namespace calquo {

/// What a person sets an attribute with.
enum class AttributeControl : std::uint8_t { NumberField, Selector, CheckBox };

/// The numbers that a person may choose for an attribute, both ends included. A field may be too narrow for the
/// largest.
struct AttributeRange {
    std::uint32_t smallest;
    std::uint32_t largest;
};

inline constexpr AttributeRange offOrOn{0, 1};

/// The methods that make a number whole, in the order of their numbers.
inline constexpr std::array<std::string_view, 5> truncationMethods = {"round", "sRound", "floor", "ceiling", "whole"};

struct Attribute {
    char letter;
    NumericFormat field;
    AttributeControl control;
    std::string_view label;  ///< The "&" marks the letter of its key; no two attributes of a kind share one.
    AttributeRange range;
    bool ofDenominators = false;  ///< Stands for the letter in the kinds that write fractions.
};

inline constexpr std::array attributes = std::to_array<Attribute>({
    {'G',
     field::groupSize,
     AttributeControl::NumberField,
     "&Number of digits in a group",
     {shortestGroup, longestGroup}},
    {'D', field::digits, AttributeControl::NumberField, "Maximum &fractional digits", {0, 15}},
    {'D', field::digits, AttributeControl::NumberField, "Maximum &denominator digits", {1, 15}, true},
    {'S', field::significantDigits, AttributeControl::NumberField, "Maximum &significant digits", {1, 64}},
    {'X', field::exponentLimit, AttributeControl::NumberField, "Fixed point e&xponent limit", {2, 15}},
    {'T', field::truncation, AttributeControl::Selector, "&Truncation method", {0, truncationMethods.size() - 1}},
    {'I', field::zeroOut, AttributeControl::CheckBox, "&Zero-out insignificant values", offOrOn},
    {'Z', field::trailingZeros, AttributeControl::CheckBox, "Show &trailing zeros", offOrOn},
    {'W', field::groupWhole, AttributeControl::CheckBox, "Group digits in the &whole part", offOrOn},
    {'F', field::groupFraction, AttributeControl::CheckBox, "&Group digits in the fraction", offOrOn},
    {'E', field::alwaysExponent, AttributeControl::CheckBox, "Always show '&e'", offOrOn},
    {'.', field::alwaysDecimalMark, AttributeControl::CheckBox, "&Always show the decimal mark", offOrOn},
    {'+', field::plusSign, AttributeControl::CheckBox, "Show + for &positive values", offOrOn},
});

/// The attribute of a letter in a kind of format; null for a letter that stands for none.
constexpr const Attribute* attributeOf(FormatKind kind, char letter) {
    const bool writesFractions = kind == FormatKind::Rational || kind == FormatKind::Fractional;
    const auto* const found = std::ranges::find_if(attributes, [&](const Attribute& attribute) {
        return attribute.letter == letter && (letter != 'D' || attribute.ofDenominators == writesFractions);
    });
    return found == attributes.end() ? nullptr : found;
}

/// The field that a letter stands for in every kind; 0 for a letter that stands for none.
constexpr NumericFormat fieldOfLetter(char letter) {
    const Attribute* const attribute = attributeOf(FormatKind::Automatic, letter);
    return attribute == nullptr ? 0 : attribute->field;
}

/// Whether a word is one of the given kind, with its reserved bits 0 and every attribute of the kind in its range.
constexpr bool isWellFormed(NumericFormat word, FormatKind kind) {
    constexpr NumericFormat reserved = 0x180;
    if (getField(word, field::kind) != static_cast<std::uint32_t>(kind) || (word & reserved) != 0) {
        return false;
    }
    return std::ranges::all_of(formatKinds[static_cast<std::size_t>(kind)].letters, [&](char letter) {
        const Attribute* const attribute = attributeOf(kind, letter);
        const std::uint32_t value = attribute == nullptr ? 0 : getField(word, attribute->field);
        return attribute != nullptr && value >= attribute->range.smallest && value <= attribute->range.largest;
    });
}

constexpr bool areDefaultsWellFormed() {
    for (std::uint32_t kind = 0; kind < defaultFormats.size(); ++kind) {
        if (!isWellFormed(defaultFormats[kind], static_cast<FormatKind>(kind))) {
            return false;
        }
    }
    return true;
}

// Also: every letter of every kind stands in the table.
static_assert(areDefaultsWellFormed());

}  // namespace calquo
