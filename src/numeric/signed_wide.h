// Real numbers with a 128-bit mantissa and exponents beyond those of any 80-bit number, for sums in which 64 bits would
// cancel and products that would leave the range on their way.
#pragma once

#include "values/wide_float.h"

namespace calquo {

/// A wide number with a sign, or 0.
struct SignedWide {
    WideFloat magnitude;  ///< meaningless when zero is set
    bool negative = false;
    bool zero = true;

    constexpr SignedWide() = default;
    constexpr SignedWide(const WideFloat& size, bool below = false) : magnitude(size), negative(below), zero(false) {}
    /// A finite number, exactly. Implicit, so that formulas read as they are written.
    SignedWide(Real x);
};

SignedWide operator-(const SignedWide& a);
/// Sum and difference, within 2^-126 of the larger operand; exact where 128 bits hold it.
SignedWide operator+(const SignedWide& a, const SignedWide& b);
SignedWide operator-(const SignedWide& a, const SignedWide& b);
/// Product, within 2^-126 of itself, and quotient by a divisor other than 0, within 2^-122.
SignedWide operator*(const SignedWide& a, const SignedWide& b);
SignedWide operator/(const SignedWide& a, const SignedWide& b);

/// -1, 0 or 1.
int signOf(const SignedWide& a);

SignedWide absolute(const SignedWide& a);

/// The nearest extended number with its sign; an infinity beyond their range.
Real toReal(const SignedWide& a);

}  // namespace calquo
