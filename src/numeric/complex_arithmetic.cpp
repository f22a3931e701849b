// Complex arithmetic by the textbook formulas, over checked real steps.
#include "numeric/complex_arithmetic.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/exponential.h"

namespace calquo {
namespace {

/// Points at the imaginary part of a literal "(re; im)", for steps that work on that part alone.
void pointAtImaginaryPart(const Value& v) {
    if (v.positions.imaginaryPartEnd != -1) {
        setErrorPosition(v.positions.imaginaryPartEnd);
    }
}

/// u^2 + v^2.
Real squaredModulus(const Value& w) { return addReal(sqrReal(w.re), sqrReal(w.im)); }

}  // namespace

void pointAt(const Value& v) {
    if (v.positions.literalStart != -1) {
        setErrorPosition(v.positions.literalStart);
    }
}

Value add(const Value& z, const Value& w) {
    pointAt(w);
    const Real re = addReal(z.re, w.re);
    pointAtImaginaryPart(w);
    return Value(re, addReal(z.im, w.im)).at(w.positions);
}

Value sub(const Value& z, const Value& w) {
    pointAt(w);
    const Real re = subReal(z.re, w.re);
    pointAtImaginaryPart(w);
    return Value(re, subReal(z.im, w.im)).at(w.positions);
}

Value mul(const Value& z, const Value& w) {
    pointAt(w);
    const Real re = subReal(mulReal(z.re, w.re), mulReal(z.im, w.im));
    const Real im = addReal(mulReal(z.im, w.re), mulReal(z.re, w.im));
    return Value(re, im).at(w.positions);
}

Value div(const Value& z, const Value& w) {
    pointAt(w);
    const Real n = squaredModulus(w);
    const Real re = divReal(addReal(mulReal(z.im, w.im), mulReal(z.re, w.re)), n);
    const Real im = divReal(subReal(mulReal(z.im, w.re), mulReal(z.re, w.im)), n);
    return Value(re, im).at(w.positions);
}

Value neg(const Value& z) {
    pointAt(z);
    const Real re = negReal(z.re);
    pointAtImaginaryPart(z);
    return Value(re, negReal(z.im)).at(z.positions);
}

Value conj(const Value& z) {
    pointAt(z);
    pointAtImaginaryPart(z);
    return Value(z.re, negReal(z.im)).at(z.positions);
}

Value pct(const Value& z) { return div(z, Value(100)).at(z.positions); }

Value inv(const Value& z) {
    pointAt(z);
    if (z.im == 0) {
        return Value(recipReal(z.re)).at(z.positions);
    }
    const Real n = squaredModulus(z);
    return Value(divReal(z.re, n), divReal(negReal(z.im), n)).at(z.positions);
}

Value sqr(const Value& z) {
    pointAt(z);
    const Real re = subReal(sqrReal(z.re), sqrReal(z.im));
    return Value(re, mulReal(2, mulReal(z.re, z.im))).at(z.positions);
}

Value cube(const Value& z) {
    pointAt(z);
    const Real xx = sqrReal(z.re);
    const Real yy = sqrReal(z.im);
    const Real re = subReal(mulReal(xx, z.re), mulReal(3, mulReal(z.re, yy)));
    const Real im = subReal(mulReal(3, mulReal(xx, z.im)), mulReal(yy, z.im));
    return Value(re, im).at(z.positions);
}

Value real(const Value& z) { return Value(z.re).at(z.positions); }

Value imag(const Value& z) { return Value(z.im).at(z.positions); }

Value norm2(const Value& z) {
    pointAt(z);
    return Value(squaredModulus(z)).at(z.positions);
}

Value abs(const Value& z) {
    pointAt(z);
    if (z.re == 0) {
        return Value(absReal(z.im)).at(z.positions);
    }
    if (z.im == 0) {
        return Value(absReal(z.re)).at(z.positions);
    }
    return sqrt(norm2(z));
}

Value arg(const Value& z) {
    checkValue(z, CheckFlags::Report);
    // Adding 0 turns a negative zero into 0, so that the negative real axis lies on the +pi side.
    return Value(std::atan2(z.im + 0, z.re + 0)).at(z.positions);
}

Value sign(const Value& z) {
    pointAt(z);
    if (z.im == 0) {
        return Value(signReal(z.re)).at(z.positions);
    }
    return div(z, abs(z)).at(z.positions);
}

Value polar(const Value& r, const Value& angle) {
    requireReal(r, CheckFlags::Report);
    requireReal(angle, CheckFlags::Report);
    pointAt(angle);
    const Real re = mulReal(r.re, cosReal(angle.re));
    return Value(re, mulReal(r.re, sinReal(angle.re))).at(angle.positions);
}

}  // namespace calquo
