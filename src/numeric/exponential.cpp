// Exponential, logarithms, powers and roots.
#include "numeric/exponential.h"

#include <cmath>
#include <complex>

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
    const std::complex<Real> logarithm = std::log(std::complex<Real>(z.re, z.im));
    return Value(logarithm.real(), logarithm.imag()).at(z.positions);
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
