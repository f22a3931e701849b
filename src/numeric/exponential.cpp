// Exponential, logarithms, powers and roots.
#include "numeric/exponential.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/wide_logarithm.h"

namespace calquo {
namespace {

bool positiveReal(const Value& z) { return z.im == 0 && z.re > 0 && !outOfRange(z.re); }

bool finiteReal(const Value& z) { return z.im == 0 && z.re >= -largestFinite && z.re <= largestFinite; }

/// Refuses an exponent of e as the product and expReal would: 6 when it overflows, 9 beyond the limits.
void checkExponent(Real exponent) {
    inRange(exponent);
    if (exponent < lowestExponent || exponent > highestExponent) {
        raise(ErrorCode::LimitExceeded);
    }
}

/// The nearest number to the power whose exponent of e is factor ln x, or ln x / factor; factor is not 0.
template <bool divide>
Real positivePower(Real x, Real factor) {
    SignedWide logarithm = wideLogarithm(x);
    const Real estimate = divide ? toReal(logarithm) / factor : toReal(logarithm) * factor;
    checkExponent(estimate);
    if (logarithm.zero || estimate == 0) {
        return 1;
    }
    const WideFloat scale = wideFloat(std::fabs(factor));
    logarithm.magnitude = multiply(logarithm.magnitude, divide ? reciprocal(scale) : scale);
    logarithm.negative = logarithm.negative != (factor < 0);
    return toReal(wideExponential(logarithm));
}

/// A sum of two wide numbers, and the part of its last unit that did not fit, as a fraction.
struct WideSum {
    WideFloat leading;
    UInt128 trailing;
};

/// a + b for a not below b.
WideSum sum(const WideFloat& a, const WideFloat& b) {
    const int shift = a.exponent - b.exponent;
    const UInt128 mantissa = a.mantissa + shiftRight(b.mantissa, shift);
    const UInt128 trailing = shift == 0 ? UInt128{} : shiftLeft(b.mantissa, 128 - shift);
    if (mantissa >= a.mantissa) {
        return {{mantissa, a.exponent}, trailing};
    }
    // Carried out of the top.
    return {{shiftRight(mantissa, 1) + UInt128{std::uint64_t{1} << 63, 0}, a.exponent + 1},
            shiftRight(trailing, 1) + shiftLeft(mantissa, 127)};
}

/// ln |x + iy| for finite parts, not both 0. Next to the unit circle, where it is small, it keeps its relative
/// precision: x^2 + y^2 is summed exactly, and what its rounding to an extended number takes away is put back.
Real logarithmOfModulus(Real x, Real y) {
    const Real larger = std::fmax(std::fabs(x), std::fabs(y));
    const Real ratio = std::fmin(std::fabs(x), std::fabs(y)) / larger;
    if (ratio * ratio < 0x1p-64L) {
        return toReal(wideLogarithm(larger)) + ratio * ratio / 2;
    }
    // The squares of numbers far from 1 would leave the range.
    const int scale = std::fabs(larger - 1) < 1 ? 0 : std::ilogb(larger);
    const WideFloat a = wideFloat(std::ldexp(larger, -scale));
    const WideFloat b = wideFloat(std::ldexp(std::fmin(std::fabs(x), std::fabs(y)), -scale));
    const auto [leading, trailing] = sum(multiply(a, a), multiply(b, b));
    const Truncation squares = truncate(leading);
    const bool up = squares.rest > squares.half;
    const Real rest = up ? -static_cast<Real>(0 - squares.rest.low) : static_cast<Real>(squares.rest.low);
    const Real lost = (rest + static_cast<Real>(trailing.high) * 0x1p-64L) * 0x1p-64L / static_cast<Real>(squares.kept);
    constexpr Real lnTwo = 0.693147180559945309417232121458176568L;
    return (toReal(wideLogarithm(toReal(squares, up))) + lost) / 2 + static_cast<Real>(scale) * lnTwo;
}

/// ln z / ln b for positive reals other than b = 1.
Real positiveLogarithm(Real z, Real base) {
    SignedWide numerator = wideLogarithm(z);
    const SignedWide denominator = wideLogarithm(base);
    if (numerator.zero) {
        return 0;
    }
    numerator.magnitude = multiply(numerator.magnitude, reciprocal(denominator.magnitude));
    numerator.negative = numerator.negative != denominator.negative;
    return toReal(numerator);
}

}  // namespace

Value exp(const Value& z) {
    pointAt(z);
    const Real modulus = expReal(z.re);
    if (z.im == 0) {
        return Value(modulus).at(z.positions);
    }
    return Value(mulReal(modulus, cosReal(z.im)), mulReal(modulus, sinReal(z.im))).at(z.positions);
}

Value ln(const Value& z) {
    checkValue(z, CheckFlags::Report | CheckFlags::NoZero);
    if (positiveReal(z)) {
        return Value(toReal(wideLogarithm(z.re))).at(z.positions);
    }
    if (z.im == 0 && z.re < 0) {
        return Value(toReal(wideLogarithm(-z.re)), pi).at(z.positions);
    }
    // checkValue has refused infinities; a NaN in one part makes both parts one.
    const Real modulus = std::isunordered(z.re, z.im) ? z.re + z.im : logarithmOfModulus(z.re, z.im);
    return Value(modulus, std::atan2(z.im, z.re)).at(z.positions);
}

Value logB(const Value& z, const Value& base) {
    checkValue(z, CheckFlags::Report | CheckFlags::NoZero);
    checkValue(base, CheckFlags::Report | CheckFlags::NoZero | CheckFlags::NoOne);
    if (positiveReal(z) && positiveReal(base)) {
        return Value(positiveLogarithm(z.re, base.re)).at(base.positions);
    }
    return div(ln(z), ln(base));
}

Value log10(const Value& z) { return logB(z, Value(10)).at(z.positions); }

Value log2(const Value& z) { return logB(z, Value(2)).at(z.positions); }

Value pow(const Value& z, const Value& w) {
    if (z.re == 0 && z.im == 0) {
        return Value(0);
    }
    if (positiveReal(z) && finiteReal(w)) {
        pointAt(w);
        return Value(w.re == 0 ? 1 : positivePower<false>(z.re, w.re)).at(w.positions);
    }
    return exp(mul(ln(z), w));
}

Value root(const Value& z, const Value& degree) {
    const Value exponent = inv(degree);
    if (positiveReal(z) && finiteReal(degree)) {
        pointAt(degree);
        return Value(positivePower<true>(z.re, degree.re)).at(degree.positions);
    }
    return pow(z, exponent);
}

Value sqrt(const Value& z) {
    if (positiveReal(z)) {
        return Value(std::sqrt(z.re)).at(z.positions);
    }
    return root(z, Value(2)).at(z.positions);
}

Value cbrt(const Value& z) { return root(z, Value(3)).at(z.positions); }

}  // namespace calquo
