// Circular and hyperbolic functions: the steps of their complex formulas are checked, their values are rounded once.
#include "numeric/trigonometric.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/wide_complex.h"
#include "numeric/wide_trigonometric.h"
#include "values/extended.h"

namespace calquo {
namespace {

// Everything below is made of s = sin, c = cos of one part of z and S = sinh, C = cosh of the other one. Of the squared
// moduli that divide, only sums of squares are left, in which nothing cancels: c^2 + S^2 = |cos z|^2,
// s^2 + S^2 = |sin z|^2.

/// Refuses a hyperbolic sine or cosine beyond the range.
void refuseOverflow(Real x) {
    if (std::fabs(x) > highestExponent && (std::fabs(x) > 12000 || std::isinf(toReal(wideHyperbolic(x).cosine)))) {
        raiseOutOfRange();
    }
}

/// The parts of a finite z = x + iy from which sin z and cos z are made.
struct CircularParts {
    SignedWide s, c, S, C;

    explicit CircularParts(const Value& z) {
        const SineCosine circular = wideSineCosine(z.re);
        const SineCosine hyperbolic = wideHyperbolic(z.im);
        s = circular.sine;
        c = circular.cosine;
        S = hyperbolic.sine;
        C = hyperbolic.cosine;
    }

    [[nodiscard]] WideComplex sine() const { return {s * C, c * S}; }
    [[nodiscard]] WideComplex cosine() const { return {c * C, -(s * S)}; }
    [[nodiscard]] SignedWide squaredSine() const { return s * s + S * S; }
    [[nodiscard]] SignedWide squaredCosine() const { return c * c + S * S; }
};

/// The same from which sinh z and cosh z are made.
struct HyperbolicParts : CircularParts {
    explicit HyperbolicParts(const Value& z) : CircularParts(Value(z.im, z.re)) {}

    [[nodiscard]] WideComplex sine() const { return {S * c, C * s}; }
    [[nodiscard]] WideComplex cosine() const { return {C * c, S * s}; }
};

Value checkedValue(const WideComplex& w, const Value& z) {
    const Value result = rounded(w);
    return Value(inRange(result.re), inRange(result.im)).at(z.positions);
}

/// 1 / w by the steps of inv, for a w with a given squared modulus that comes from an operand z.
Value inverse(const WideComplex& w, const SignedWide& squaredModulus, const Value& z) {
    if (toReal(w.im) == 0) {
        if (toReal(w.re) == 0) {
            raise(ErrorCode::DivisionByZero);
        }
        return Value(inRange(toReal(reciprocal(w.re)))).at(z.positions);
    }
    if (inRange(toReal(squaredModulus)) == 0) {
        raise(ErrorCode::DivisionByZero);
    }
    return checkedValue(conjugate(w) * reciprocal(squaredModulus), z);
}

/// Refuses, for sine and cosine, an imaginary part that is too large. False for a NaN.
bool startsCircular(const Value& z) {
    reportErrorsAt(z);
    refuseOverflow(z.im);
    return isFinite(z);
}

/// Refuses what the steps of tan refuse: parts whose double leaves the range or the limits of cosh, and numbers that
/// cannot be told from a pole, within 2 units in the last place of it. False for a NaN.
bool startsTangent(const Value& z) {
    reportErrorsAt(z);
    mulReal(2, z.re);
    refuseOverflow(mulReal(2, z.im));
    if (!isFinite(z)) {
        return false;
    }
    const ReducedAngle reduced = reduceAngle(z.re);
    if (reduced.quadrant % 2 != 0) {
        // Of numbers from 2^63 on all are that close, so that the width has a bound: what the formula's denominator
        // cos 2x + 1 takes for 0.
        const Real vicinity = std::fmin(std::ldexp(Real{1}, bitsOf(z.re).exponent() + 1), 0x1p-32L);
        if (toReal(absolute(reduced.angle)) <= vicinity && std::fabs(z.im) <= vicinity) {
            raise(ErrorCode::DivisionByZero);
        }
    }
    return true;
}

void refuseSteep(const Value& z) {
    reportErrorsAt(z);
    limitedExponent(std::fabs(z.re));
}

/// Refuses what e^z and e^-z refuse. False for a NaN.
bool startsExponentials(const Value& z) {
    neg(z);
    refuseSteep(z);
    return isFinite(z);
}

/// sinh z or cosh z, unless the double of e^z -+ e^-z, a step in halving it, leaves the range.
const WideComplex& halved(const WideComplex& half, const Value& z) {
    if (std::fabs(z.re) > highestExponent - 1) {
        inRange(toReal(scaled(half.re, 2)));
        inRange(toReal(scaled(half.im, 2)));
    }
    return half;
}

/// Refuses what the steps of tanh refuse: |e^z + e^-z|^2 beyond the range, too. False for a NaN.
bool startsHyperbolicTangent(const Value& z) {
    // e^z comes before -z, and e^-z after it.
    reportErrorsAt(z);
    if (z.re < lowestExponent || z.re > highestExponent) {
        raise(ErrorCode::LimitExceeded);
    }
    neg(z);
    refuseSteep(z);
    if (!isFinite(z)) {
        return false;
    }
    if (2 * std::fabs(z.re) > highestExponent) {
        inRange(toReal(scaled(HyperbolicParts(z).squaredCosine(), 2)));
    }
    return true;
}

}  // namespace

Value sin(const Value& z) { return startsCircular(z) ? checkedValue(CircularParts(z).sine(), z) : notANumber(z); }

Value cos(const Value& z) { return startsCircular(z) ? checkedValue(CircularParts(z).cosine(), z) : notANumber(z); }

Value sec(const Value& z) {
    if (!startsCircular(z)) {
        return notANumber(z);
    }
    const CircularParts parts(z);
    return inverse(parts.cosine(), parts.squaredCosine(), z);
}

Value csc(const Value& z) {
    if (!startsCircular(z)) {
        return notANumber(z);
    }
    const CircularParts parts(z);
    return inverse(parts.sine(), parts.squaredSine(), z);
}

Value tan(const Value& z) {
    if (!startsTangent(z)) {
        return notANumber(z);
    }
    // (sin 2x + i sinh 2y) / (cos 2x + cosh 2y) = (s c + i S C) / (c^2 + S^2)
    const CircularParts parts(z);
    return checkedValue(WideComplex{parts.s * parts.c, parts.S * parts.C} * reciprocal(parts.squaredCosine()), z);
}

Value cot(const Value& z) {
    if (!startsTangent(z)) {
        return notANumber(z);
    }
    const CircularParts parts(z);
    const SignedWide scale = reciprocal(parts.squaredCosine());
    return inverse(WideComplex{parts.s * parts.c, parts.S * parts.C} * scale, parts.squaredSine() * scale, z);
}

Value sinH(const Value& z) {
    return startsExponentials(z) ? checkedValue(halved(HyperbolicParts(z).sine(), z), z) : notANumber(z);
}

Value cosH(const Value& z) {
    return startsExponentials(z) ? checkedValue(halved(HyperbolicParts(z).cosine(), z), z) : notANumber(z);
}

Value secH(const Value& z) {
    if (!startsExponentials(z)) {
        return notANumber(z);
    }
    const HyperbolicParts parts(z);
    return inverse(halved(parts.cosine(), z), parts.squaredCosine(), z);
}

Value cscH(const Value& z) {
    if (!startsExponentials(z)) {
        return notANumber(z);
    }
    const HyperbolicParts parts(z);
    return inverse(halved(parts.sine(), z), parts.squaredSine(), z);
}

Value tanH(const Value& z) {
    if (!startsHyperbolicTangent(z)) {
        return notANumber(z);
    }
    // sinh z conj(cosh z) / |cosh z|^2 = (S C + i s c) / (c^2 + S^2)
    const HyperbolicParts parts(z);
    return checkedValue(WideComplex{parts.S * parts.C, parts.s * parts.c} * reciprocal(parts.squaredCosine()), z);
}

Value cotH(const Value& z) {
    if (!startsHyperbolicTangent(z)) {
        return notANumber(z);
    }
    const HyperbolicParts parts(z);
    const SignedWide scale = reciprocal(parts.squaredCosine());
    return inverse(WideComplex{parts.S * parts.C, parts.s * parts.c} * scale, parts.squaredSine() * scale, z);
}

}  // namespace calquo
