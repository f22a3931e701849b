// Positive floats with a 128-bit mantissa: what stands between two roundings to 80 bits in reading, writing, powers and
// logarithms.
#pragma once

#include <cstdint>

#include "values/uint128.h"
#include "values/value.h"

namespace calquo {

/// mantissa * 2^exponent, with the mantissa's top bit set.
struct WideFloat {
    UInt128 mantissa;
    int exponent = 0;
};

/// The number with mantissa other than 0, shifted until its top bit is set.
constexpr WideFloat normalized(UInt128 mantissa, int exponent) {
    const int shift = leadingZeros(mantissa);
    return {shiftLeft(mantissa, shift), exponent - shift};
}

/// Exact conversion of a word other than 0.
constexpr WideFloat wideFloat(std::uint64_t word) { return normalized({0, word}, 0); }

/// Exact conversion of a finite positive number.
WideFloat wideFloat(Real x);

/// a b, too small by less than 2^-126 of itself; exact when the mantissas' significant bits add up to 128 or fewer.
constexpr WideFloat multiply(const WideFloat& a, const WideFloat& b) {
    return normalized(multiplyHigh(a.mantissa, b.mantissa), a.exponent + b.exponent + 128);
}

/// 1 / a within 2^-123 of itself.
WideFloat reciprocal(const WideFloat& a);

/// The root of a within 2^-125 of itself; exact where it has 64 bits.
WideFloat squareRoot(const WideFloat& a);

/// base^exponent for a base of 2 to 36, within (|exponent| + 1) 2^-122 of itself.
WideFloat power(std::uint32_t base, int exponent);

/// A wide number cut to the precision of an extended one: kept * 2^exponent. The rest that was cut off lies half-way
/// between two extended numbers when it equals half.
struct Truncation {
    std::uint64_t kept = 0;
    int exponent = 0;
    UInt128 rest;
    UInt128 half;
};
Truncation truncate(const WideFloat& a);

/// kept * 2^exponent, one unit more when asked; kept has its top bit set or the exponent is that of the denormals.
/// Infinity above the finite range.
Real toReal(const Truncation& a, bool up);

/// The nearest extended number, ties to even; denormals and 0 below the normal range, infinity above the finite one.
Real toReal(const WideFloat& a);

}  // namespace calquo
