// Circular, hyperbolic and inverse functions by their complex formulas.
#include "numeric/trigonometric.h"

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/exponential.h"

namespace calquo {
namespace {

/// A constant of a formula, carrying the operand's positions so that an error of its step points at the operand.
Value constant(Real number, const Value& z) { return Value(number).at(z.positions); }

/// i z, with z's positions.
Value timesI(const Value& z) { return mul(imaginaryUnit, z); }

Value half(const Value& z) { return div(z, constant(2, z)); }

/// ln(z + sqrt(z^2 + shift)): the inverse hyperbolic sine for shift 1, cosine for shift -1.
Value logarithmWithRoot(const Value& z, Real shift) { return ln(add(z, sqrt(add(sqr(z), constant(shift, z))))); }

}  // namespace

Value sin(const Value& z) {
    pointAt(z);
    const Real re = mulReal(sinReal(z.re), coshReal(z.im));
    return Value(re, mulReal(cosReal(z.re), sinhReal(z.im))).at(z.positions);
}

Value cos(const Value& z) {
    pointAt(z);
    const Real re = mulReal(cosReal(z.re), coshReal(z.im));
    return Value(re, negReal(mulReal(sinReal(z.re), sinhReal(z.im)))).at(z.positions);
}

Value tan(const Value& z) {
    pointAt(z);
    const Real x2 = mulReal(2, z.re);
    const Real y2 = mulReal(2, z.im);
    const Real denominator = addReal(cosReal(x2), coshReal(y2));
    const Real re = divReal(sinReal(x2), denominator);
    return Value(re, divReal(sinhReal(y2), denominator)).at(z.positions);
}

Value cot(const Value& z) { return inv(tan(z)); }

Value sec(const Value& z) { return inv(cos(z)); }

Value csc(const Value& z) { return inv(sin(z)); }

Value sinH(const Value& z) { return half(sub(exp(z), exp(neg(z)))); }

Value cosH(const Value& z) { return half(add(exp(z), exp(neg(z)))); }

Value tanH(const Value& z) {
    const Value rising = exp(z);
    const Value falling = exp(neg(z));
    return div(sub(rising, falling), add(rising, falling));
}

Value cotH(const Value& z) { return inv(tanH(z)); }

Value secH(const Value& z) { return inv(cosH(z)); }

Value cscH(const Value& z) { return inv(sinH(z)); }

Value aSin(const Value& z) {
    const Value opposite = sqrt(sub(constant(1, z), sqr(z)));
    return neg(timesI(ln(add(timesI(z), opposite))));
}

Value aCos(const Value& z) { return sub(Value(pi / 2), aSin(z)); }

Value aTan(const Value& z) {
    const Value iz = timesI(z);
    const Value one = constant(1, z);
    return div(sub(ln(add(one, iz)), ln(sub(one, iz))), Value(0, 2).at(z.positions));
}

Value aCot(const Value& z) { return aTan(inv(z)); }

Value aSec(const Value& z) { return aCos(inv(z)); }

Value aCsc(const Value& z) { return aSin(inv(z)); }

Value aSinH(const Value& z) { return logarithmWithRoot(z, 1); }

Value aCosH(const Value& z) { return logarithmWithRoot(z, -1); }

Value aTanH(const Value& z) {
    const Value one = constant(1, z);
    return half(ln(div(add(one, z), sub(one, z))));
}

Value aCotH(const Value& z) {
    const Value one = constant(1, z);
    return half(ln(div(add(z, one), sub(z, one))));
}

Value aSecH(const Value& z) { return aCosH(inv(z)); }

Value aCscH(const Value& z) { return aSinH(inv(z)); }

}  // namespace calquo
