// Fractions of 1 as multiples of 2^-128, in which series are summed.
#pragma once

#include <cstdint>

#include "values/wide_float.h"

namespace calquo {

/// numerator / denominator below 1, rounded down.
constexpr UInt128 fractionOf(std::uint32_t numerator, std::uint32_t denominator) {
    UInt128 quotient;
    std::uint64_t remainder = numerator;
    for (int bit = 0; bit < 128; ++bit) {
        remainder *= 2;
        const bool fits = remainder >= denominator;
        remainder -= fits ? denominator : 0;
        quotient = shiftLeft(quotient, 1) + UInt128{0, fits ? 1U : 0U};
    }
    return quotient;
}

/// The fraction as a wide number; it is not 0.
constexpr WideFloat asWide(UInt128 fraction) { return normalized(fraction, -128); }

/// A wide number below 1 as a fraction.
constexpr UInt128 asFraction(const WideFloat& a) { return shiftRight(a.mantissa, -128 - a.exponent); }

}  // namespace calquo
