// The formats whose digits are checked, and the bases.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "format/numeric_format.h"

namespace calquo {

/// A kind under words with all its numbers of digits, few to many.
struct CheckedFormat {
    FormatKind kind;
    std::vector<NumericFormat> words;

    std::string_view name() const { return formatKinds[static_cast<std::size_t>(kind)].optionName; }
    bool writesFractions() const { return kind == FormatKind::Rational || kind == FormatKind::Fractional; }
};

std::span<const CheckedFormat> checkedFormats();

/// The bases that have rows of their own; another row holds all others.
inline constexpr std::uint32_t everydayBases[] = {10, 2, 16};
inline constexpr std::size_t baseRows = std::size(everydayBases) + 1;

/// The row of a base.
inline std::size_t rowOfBase(std::uint32_t base) {
    return static_cast<std::size_t>(std::find(std::begin(everydayBases), std::end(everydayBases), base) -
                                    std::begin(everydayBases));
}

}  // namespace calquo
