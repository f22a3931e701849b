// The format that writes a number with all its digits.
#pragma once

#include <cstdint>

#include "format/numeric_format.h"

namespace calquo {

/// Scientific with as many digits as the word has room for; in base 16 they hold every number.
inline constexpr NumericFormat losslessWord = std::uint32_t{1} << 28 | field::significantDigits;
inline constexpr std::uint32_t losslessBase = 16;

}  // namespace calquo
