// The value of a numeric literal's digits, correctly rounded in every base and at any length.
#pragma once

#include <cstdint>
#include <string_view>

#include "values/value.h"

namespace calquo {

/// What the scanner finds of a literal: a whole number of digits, scaled by base^exponent.
struct LiteralDigits {
    std::uint32_t base = 10;
    std::string_view text;          ///< the digits; characters that are no digits of any base are marks, and skipped
    std::uint64_t significand = 0;  ///< the digits as one number, when they fit
    bool significandFits = true;
    std::int64_t count = 0;     ///< number of digits in text
    std::int64_t exponent = 0;  ///< power of the base of the last digit
};

/// The nearest extended number, ties to even; denormals and 0 for tiny ones, infinity above the finite range. The time
/// grows in proportion to the number of digits.
///
/// Method: short literals by one exact product or quotient (Clinger, How to Read Floating Point Numbers Accurately,
/// 1990); others in 128 bits with a bound on the error, and where that leaves the rounding open, by comparing the
/// digits with those of the number half-way between the two candidates.
Real literalValue(const LiteralDigits& literal);

}  // namespace calquo
