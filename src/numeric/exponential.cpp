// Exponential, logarithms, powers and roots: the steps of their formulas are checked, their values are rounded once.
#include "numeric/exponential.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/checks.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/wide_complex.h"
#include "numeric/wide_logarithm.h"
#include "numeric/wide_trigonometric.h"

namespace calquo {
namespace {

bool positiveReal(const Value& z) { return z.im == 0 && z.re > 0 && !outOfRange(z.re); }

bool finiteReal(const Value& z) { return z.im == 0 && z.re >= -largestFinite && z.re <= largestFinite; }

/// e^a with the limits of expReal.
SignedWide limitedExponential(const SignedWide& a) {
    limitedExponent(toReal(a));
    return wideExponential(a);
}

/// The nearest number to x^exponent; 6 when the product with ln x is out of range.
Real positivePower(Real x, const SignedWide& exponent) {
    const SignedWide product = wideLogarithm(x) * exponent;
    inRange(toReal(product));
    return toReal(limitedExponential(product));
}

/// ln |z| for finite parts, not both 0. Next to the unit circle, where it is small, it keeps its relative precision:
/// |z|^2 - 1 is exact but for the rounding of its last sum.
SignedWide logarithmOfModulus(const Value& z) {
    const Real larger = std::fmax(std::fabs(z.re), std::fabs(z.im));
    const Real smaller = std::fmin(std::fabs(z.re), std::fabs(z.im));
    const SignedWide x = larger;
    const SignedWide y = smaller;
    if (larger < 0.5L || larger > 2) {
        return scaled(wideLogarithm(x * x + y * y), -1);
    }
    // The square of y by way of two halves of y, so that no sum with x^2 - 1 drops a bit of it before the last one.
    const Real upper = std::rint(smaller * 0x1p32L) * 0x1p-32L;
    const SignedWide lower = smaller - upper;
    const SignedWide excess = (x * x - 1) + SignedWide(upper) * upper + lower * (y + upper);
    return scaled(wideLogarithmOfOnePlus(excess), -1);
}

/// The logarithm of a finite z other than 0. The angle of the negative real axis is pi.
WideComplex logarithmOf(const Value& z) {
    return {z.im == 0 ? wideLogarithm(std::fabs(z.re)) : logarithmOfModulus(z), wideArcTangent(z.im, z.re)};
}

/// The angle of a finite z other than 0 in eighths of a turn, where it is a whole number of them; else 0, as of
/// positive numbers. No other angle is a rational part of a turn, since z has rational parts.
int eighthsOfTurn(const Value& z) {
    if (z.re == 0) {
        return z.im < 0 ? -2 : 2;
    }
    if (z.im == 0) {
        return z.re < 0 ? 4 : 0;
    }
    if (std::fabs(z.re) != std::fabs(z.im)) {
        return 0;
    }
    const int size = z.re < 0 ? 3 : 1;
    return z.im < 0 ? -size : size;
}

/// z^w for finite z other than 0 and a finite w that is given rounded and as exactly as it is known.
Value power(const Value& z, const Value& w, const WideComplex& wide) {
    const WideComplex logarithm = logarithmOf(z);
    // The product of logarithm and exponent as a step, for its errors, and to the last bit.
    const Value product = mul(rounded(logarithm), w);
    const WideComplex exponent = logarithm * wide;
    const SignedWide modulus = limitedExponential(exponent.re);
    const int eighths = eighthsOfTurn(z);
    SineCosine circle;
    if (eighths != 0 && (w.im == 0 || logarithm.re.zero)) {
        circle = wideSineCosine(reduceHalfTurns(scaled(eighths * wide.re, -2)));
        if (eighths == 4 && w.im == 0 && !hasFraction(w.re) && signOf(wide.re - w.re) == 0) {
            // Whole powers of negative numbers deliberately keep the residue of k pi.
            circle.sine = wideSineCosine(product.im).sine;
        }
    } else {
        circle = wideSineCosine(reduceAngle(exponent.im));
    }
    return rounded({modulus * circle.cosine, modulus * circle.sine}).at(w.positions);
}

}  // namespace

Value exp(const Value& z) {
    reportErrorsAt(z);
    if (z.im == 0) {
        return Value(expReal(z.re)).at(z.positions);
    }
    limitedExponent(z.re);
    if (!isFinite(z)) {
        return notANumber(z);
    }
    const SignedWide wide = wideExponential(z.re);
    const SineCosine circle = wideSineCosine(z.im);
    return rounded({wide * circle.cosine, wide * circle.sine}).at(z.positions);
}

Value ln(const Value& z) {
    checkValue(z, CheckFlags::Report | CheckFlags::NoZero);
    if (positiveReal(z)) {
        return Value(toReal(wideLogarithm(z.re))).at(z.positions);
    }
    return isFinite(z) ? rounded(logarithmOf(z)).at(z.positions) : notANumber(z);
}

Value logB(const Value& z, const Value& base) {
    checkValue(z, CheckFlags::Report | CheckFlags::NoZero);
    checkValue(base, CheckFlags::Report | CheckFlags::NoZero | CheckFlags::NoOne);
    if (positiveReal(z) && positiveReal(base)) {
        return Value(toReal(wideLogarithm(z.re) / wideLogarithm(base.re))).at(base.positions);
    }
    if (!isFinite(z) || !isFinite(base)) {
        return notANumber(base);
    }
    return rounded(logarithmOf(z) / logarithmOf(base)).at(base.positions);
}

Value log10(const Value& z) { return logB(z, Value(10)).at(z.positions); }

Value log2(const Value& z) { return logB(z, Value(2)).at(z.positions); }

Value pow(const Value& z, const Value& w) {
    if (z.re == 0 && z.im == 0) {
        return Value(0);
    }
    if (positiveReal(z) && finiteReal(w)) {
        reportErrorsAt(w);
        return Value(positivePower(z.re, w.re)).at(w.positions);
    }
    if (!isFinite(z) || !isFinite(w)) {
        return exp(mul(ln(z), w));
    }
    return power(z, w, wideComplex(w));
}

Value root(const Value& z, const Value& degree) {
    const Value exponent = inv(degree);
    if (!isFinite(degree) || !isFinite(z) || (z.re == 0 && z.im == 0)) {
        return pow(z, exponent);
    }
    const WideComplex wide = wideComplex(degree);
    const WideComplex exact = wide.im.zero ? WideComplex{reciprocal(wide.re), 0} : WideComplex{1, 0} / wide;
    return positiveReal(z) && degree.im == 0 ? Value(positivePower(z.re, exact.re)).at(degree.positions)
                                             : power(z, exponent, exact);
}

Value sqrt(const Value& z) {
    if (positiveReal(z)) {
        return Value(std::sqrt(z.re)).at(z.positions);
    }
    if (!isFinite(z)) {
        return root(z, Value(2)).at(z.positions);
    }
    if (z.im == 0) {
        return Value(0, std::sqrt(-z.re)).at(z.positions);
    }
    return rounded(squareRoot(wideComplex(z))).at(z.positions);
}

Value cbrt(const Value& z) { return root(z, Value(3)).at(z.positions); }

}  // namespace calquo
