// Signed arithmetic on 128-bit floats.
#include "numeric/signed_wide.h"

#include <cmath>
#include <tuple>

namespace calquo {
namespace {

/// |a| + |b| for |a| not below |b|.
WideFloat sum(const WideFloat& a, const WideFloat& b) {
    const UInt128 mantissa = a.mantissa + shiftRight(b.mantissa, a.exponent - b.exponent);
    if (mantissa >= a.mantissa) {
        return {mantissa, a.exponent};
    }
    // Carried out of the top.
    return {shiftRight(mantissa, 1) + UInt128{std::uint64_t{1} << 63, 0}, a.exponent + 1};
}

}  // namespace

SignedWide::SignedWide(Real x) : negative(std::signbit(x)), zero(x == 0) {
    if (!zero) {
        magnitude = wideFloat(std::fabs(x));
    }
}

SignedWide operator-(const SignedWide& a) {
    SignedWide result = a;
    result.negative = !a.negative;
    return result;
}

SignedWide operator+(const SignedWide& a, const SignedWide& b) {
    if (a.zero || b.zero) {
        const SignedWide& other = a.zero ? b : a;
        return other.zero && a.negative != b.negative ? SignedWide() : other;
    }
    const bool descending =
        std::tie(a.magnitude.exponent, a.magnitude.mantissa) >= std::tie(b.magnitude.exponent, b.magnitude.mantissa);
    const SignedWide& larger = descending ? a : b;
    const SignedWide& smaller = descending ? b : a;
    if (a.negative == b.negative) {
        return {sum(larger.magnitude, smaller.magnitude), a.negative};
    }
    const int shift = larger.magnitude.exponent - smaller.magnitude.exponent;
    const UInt128 rest = larger.magnitude.mantissa - shiftRight(smaller.magnitude.mantissa, shift);
    return rest == UInt128{} ? SignedWide() : SignedWide(normalized(rest, larger.magnitude.exponent), larger.negative);
}

SignedWide operator-(const SignedWide& a, const SignedWide& b) { return a + -b; }

SignedWide operator*(const SignedWide& a, const SignedWide& b) {
    const bool negative = a.negative != b.negative;
    if (a.zero || b.zero) {
        SignedWide zero;
        zero.negative = negative;
        return zero;
    }
    return {multiply(a.magnitude, b.magnitude), negative};
}

SignedWide operator/(const SignedWide& a, const SignedWide& b) {
    return a * SignedWide(reciprocal(b.magnitude), b.negative);
}

SignedWide squareRoot(const SignedWide& a) { return a.zero ? a : squareRoot(a.magnitude); }

SignedWide scaled(const SignedWide& a, int exponent) {
    SignedWide result = a;
    result.magnitude.exponent += exponent;
    return result;
}

int signOf(const SignedWide& a) { return a.zero ? 0 : a.negative ? -1 : 1; }

SignedWide absolute(const SignedWide& a) { return a.negative ? -a : a; }

Real toReal(const SignedWide& a) {
    const Real magnitude = a.zero ? 0 : toReal(a.magnitude);
    return a.negative ? -magnitude : magnitude;
}

}  // namespace calquo
