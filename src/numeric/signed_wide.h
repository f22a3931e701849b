// Real numbers with a 128-bit mantissa and exponents beyond those of any 80-bit number, on which every function of more
// than one rounding is computed.
//
// The errors, for all of them: a sum, product, quotient or root is within 2^-122 of itself, a logarithm, exponential or
// circular function of an exact argument within 2^-90. So a formula of some thirty such steps that never subtracts what
// is nearly equal and inexact is within 2^-85 of itself, or of the larger part of a complex result, and its one
// rounding at the end to an extended number is right but for one case in 2^20, and always within 0.500001 units in the
// last place. The formulas keep to that: what may cancel are differences of given numbers, like 1 - x, and of their
// products, which 128 bits hold exactly or of which the rest cannot matter.
#pragma once

#include "values/wide_float.h"

namespace calquo {

/// A wide number with a sign, or 0, whose sign follows the rules of IEEE 754.
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

/// The root of a number not below 0, within 2^-124 of itself; exact where it has 64 bits.
SignedWide squareRoot(const SignedWide& a);

/// a 2^exponent, exactly.
SignedWide scaled(const SignedWide& a, int exponent);

/// -1, 0 or 1.
int signOf(const SignedWide& a);

SignedWide absolute(const SignedWide& a);

/// The nearest extended number with its sign; an infinity beyond their range.
Real toReal(const SignedWide& a);

}  // namespace calquo
