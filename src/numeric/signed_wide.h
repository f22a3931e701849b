// Real numbers with a 128-bit mantissa and exponents beyond those of any 80-bit number, on which every function of more
// than one rounding is computed.
//
// The errors, for all of them: a sum, product, quotient or root is within 2^-122 of itself, a logarithm, exponential or
// circular function of an exact argument within 2^-90. Fewer than thirty such steps make 2^-85. Where a formula takes
// e^x of an inexact x, the error of x counts in units of 1, and x is at most 2^14, the logarithm of the largest number:
// that leaves 2^-75 of the result, or of its larger part where it is complex. So the one rounding at the end is right
// but for one case in a thousand, and always within 0.5005 units in the last place.
//
// That holds while nothing cancels but differences of given numbers, like 1 - x, and of their products, which 128 bits
// hold exactly or of which the rest cannot matter. Two cases are different: the squares of complex items cancel without
// bounds, and are summed by exact_sum.h; and the angle of a complex power may be huge, of which the digits before its
// point are lost to those after it: from 2^40 on, a bit of the result goes with each bit of the angle.
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
