// Inverse circular and hyperbolic functions: the steps of their logarithmic formulas are checked, their values come
// from equal formulas that do not cancel.
//
// Sources: W. Kahan, Branch Cuts for Complex Elementary Functions, 1987, for arc sine and arc cosine by way of
// sqrt(1 - z) and sqrt(1 + z); T. E. Hull, T. F. Fairgrieve and P. T. P. Tang, Implementing the Complex Arcsine and
// Arccosine Functions Using Exception Handling, 1997, for where the textbook's formulas lose digits. With numbers that
// neither overflow nor run out of bits no range of arguments needs a formula of its own.
#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/trigonometric.h"
#include "numeric/wide_complex.h"
#include "numeric/wide_logarithm.h"
#include "numeric/wide_trigonometric.h"

namespace calquo {
namespace {

Value valueOf(const WideComplex& w, const Value& z) { return rounded(w).at(z.positions); }

/// Refuses z when a step in squaring it leaves the range. False for a NaN.
bool startsWithSquare(const Value& z) {
    reportErrorsAt(z);
    sqrReal(z.re);
    sqrReal(z.im);
    mulReal(2, mulReal(z.re, z.im));
    return isFinite(z);
}

/// A number w with 1 - w and 1 + w, which lose bits when they are computed from a rounded w.
struct Neighbours {
    WideComplex number, below, above;

    [[nodiscard]] bool real() const { return number.im.zero; }
    /// (1 - w)(1 + w) for a real w.
    [[nodiscard]] SignedWide lessSquare() const { return below.re * above.re; }
};

Neighbours neighboursOf(const Value& z) {
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    return {{x, y}, {1 - x, -y}, {1 + x, y}};
}

/// Of 1 / z for z other than 0.
Neighbours neighboursOfInverse(const Value& z) {
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    if (y.zero) {
        const SignedWide inverse = reciprocal(x);
        return {{inverse, 0}, {(x - 1) * inverse, 0}, {(x + 1) * inverse, 0}};
    }
    const SignedWide scale = reciprocal(x * x + y * y);
    const SignedWide im = -y * scale;
    return {{x * scale, im}, {(x * (x - 1) + y * y) * scale, -im}, {(x * (x + 1) + y * y) * scale, im}};
}

WideComplex arcSine(const Neighbours& w) {
    if (w.real()) {
        if (signOf(w.lessSquare()) >= 0) {
            return {wideArcTangent(w.number.re, squareRoot(w.lessSquare())), 0};
        }
        // On the cuts: the lower side of the right one, the upper side of the left one.
        const bool left = w.number.re.negative;
        const SignedWide size = wideInverseCosine(-(left ? w.above.re : w.below.re));
        return {left ? -wideHalfPi : wideHalfPi, left ? size : -size};
    }
    const WideComplex rootBelow = squareRoot(w.below);
    const WideComplex rootAbove = squareRoot(w.above);
    // The imaginary parts of the roots have opposite signs, so that both sums are of equal signs.
    return {wideArcTangent(w.number.re, (rootBelow * rootAbove).re),
            wideInverseSine((conjugate(rootBelow) * rootAbove).im)};
}

WideComplex arcCosine(const Neighbours& w) {
    if (w.real()) {
        if (signOf(w.lessSquare()) >= 0) {
            return {wideArcTangent(squareRoot(w.lessSquare()), w.number.re), 0};
        }
        const bool left = w.number.re.negative;
        const SignedWide size = wideInverseCosine(-(left ? w.above.re : w.below.re));
        return {left ? widePi : SignedWide(), left ? -size : size};
    }
    const WideComplex rootBelow = squareRoot(w.below);
    const WideComplex rootAbove = squareRoot(w.above);
    return {scaled(wideArcTangent(rootBelow.re, rootAbove.re), 1),
            -wideInverseSine((conjugate(rootBelow) * rootAbove).im)};
}

/// asinh w = i asin(-i w).
WideComplex areaSine(const WideComplex& w) {
    if (w.im.zero) {
        return {wideInverseSine(w.re), 0};
    }
    const WideComplex angle = arcSine({{w.im, -w.re}, {1 - w.im, w.re}, {1 + w.im, -w.re}});
    return {-angle.im, angle.re};
}

/// ln(w + sqrt(w^2 - 1)). Its root lies in the right half-plane or, of a negative number, on the positive imaginary
/// axis, so that left of the imaginary axis the real part is negative, unlike that of the textbook's acosh.
WideComplex areaCosine(const Neighbours& w) {
    const WideComplex angle = arcCosine(w);
    const int horizontal = signOf(w.number.re);
    const int vertical = signOf(w.number.im);
    const SignedWide size = absolute(angle.im);
    const bool negativeSize = horizontal < 0 || (horizontal == 0 && vertical < 0);
    const bool negativeAngle = horizontal * vertical < 0;
    return {negativeSize ? -size : size, negativeAngle ? -angle.re : angle.re};
}

using WideFunction = WideComplex (*)(const Neighbours&);

Value ofNumber(const Value& z, WideFunction function) {
    return startsWithSquare(z) ? valueOf(function(neighboursOf(z)), z) : notANumber(z);
}

/// A function of 1 / z, whose steps may refuse z, too. The reciprocal of an infinity is 0.
Value ofInverse(const Value& z, WideFunction function) {
    const Value inverse = inv(z);
    if (!startsWithSquare(inverse)) {
        return notANumber(z);
    }
    return valueOf(function(isFinite(z) ? neighboursOfInverse(z) : neighboursOf(inverse)), z);
}

/// Raises the error of a logarithm that meets 0.
void refuseZero(const Value& z) { checkValue(Value(0).at(z.positions), CheckFlags::Report | CheckFlags::NoZero); }

/// ln(|(1 + x + iy) / (1 - x - iy)|) / 2, odd in x.
SignedWide halfLogarithmOfRatio(const SignedWide& x, const SignedWide& y) {
    const SignedWide size = absolute(x);
    const SignedWide distance = 1 - size;
    const SignedWide result = scaled(wideLogarithmOfOnePlus(scaled(size, 2) / (distance * distance + y * y)), -2);
    return x.negative ? -result : result;
}

bool isUnit(Real x) { return x == 1 || x == -1; }

/// Refuses what the steps of ln((1 + z) / (1 - z)) refuse, with the difference of z and 1 given. False for a NaN.
bool startsWithRatio(const Value& z, const Value& difference) {
    reportErrorsAt(z);
    if (inRange(sqrReal(difference.re) + sqrReal(difference.im)) == 0) {
        raise(ErrorCode::DivisionByZero);
    }
    if (z.re == -1 && z.im == 0) {
        refuseZero(z);
    }
    return isFinite(z);
}

}  // namespace

Value aSin(const Value& z) { return ofNumber(z, arcSine); }

Value aCos(const Value& z) { return ofNumber(z, arcCosine); }

Value aCosH(const Value& z) { return ofNumber(z, areaCosine); }

Value aSec(const Value& z) { return ofInverse(z, arcCosine); }

Value aCsc(const Value& z) { return ofInverse(z, arcSine); }

Value aSecH(const Value& z) { return ofInverse(z, areaCosine); }

Value aSinH(const Value& z) { return startsWithSquare(z) ? valueOf(areaSine(wideComplex(z)), z) : notANumber(z); }

Value aCscH(const Value& z) {
    const Value inverse = inv(z);
    if (!startsWithSquare(inverse)) {
        return notANumber(z);
    }
    return valueOf(areaSine(isFinite(z) ? neighboursOfInverse(z).number : wideComplex(inverse)), z);
}

Value aTan(const Value& z) {
    reportErrorsAt(z);
    inRange(z.re);
    inRange(z.im);
    if (z.re == 0 && isUnit(z.im)) {
        refuseZero(z);
    }
    if (!isFinite(z)) {
        return notANumber(z);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    if (y.zero) {
        return Value(toReal(wideArcTangent(x, 1))).at(z.positions);
    }
    // Half the angle of 1 + iz less that of 1 - iz: they have opposite signs.
    const SignedWide angle = scaled(wideArcTangent(x, 1 - y) - wideArcTangent(-x, 1 + y), -1);
    return valueOf({angle, halfLogarithmOfRatio(y, x)}, z);
}

Value aCot(const Value& z) {
    const Value inverse = inv(z);
    if (!isFinite(z)) {
        return aTan(inverse);
    }
    if (inverse.re == 0 && isUnit(inverse.im)) {
        refuseZero(z);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    if (y.zero) {
        return Value(toReal(wideArcTangent(z.re < 0 ? -1 : 1, absolute(x)))).at(z.positions);
    }
    // As for aTan; 1 -+ y of the inverse are (|z|^2 +- y) / |z|^2.
    const SignedWide square = x * x;
    const SignedWide angle =
        scaled(wideArcTangent(x, square + y * (y + 1)) - wideArcTangent(-x, square + y * (y - 1)), -1);
    return valueOf({angle, -halfLogarithmOfRatio(y, x)}, z);
}

Value aTanH(const Value& z) {
    if (!startsWithRatio(z, sub(Value(1).at(z.positions), z))) {
        return notANumber(z);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    // (1 + z)(1 - conj z) = 1 - |z|^2 + 2iy
    const SignedWide angle = wideArcTangent(scaled(y, 1), (1 - x) * (1 + x) - y * y);
    return valueOf({halfLogarithmOfRatio(x, y), scaled(angle, -1)}, z);
}

Value aCotH(const Value& z) {
    if (!startsWithRatio(z, sub(z, Value(1).at(z.positions)))) {
        return notANumber(z);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    const SignedWide angle = wideArcTangent(scaled(-y, 1), (x - 1) * (x + 1) + y * y);
    return valueOf({halfLogarithmOfRatio(x, y), scaled(angle, -1)}, z);
}

}  // namespace calquo
