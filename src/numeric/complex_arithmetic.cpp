// Complex arithmetic by the textbook formulas: their steps are checked, their values are rounded once.
#include "numeric/complex_arithmetic.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/exponential.h"
#include "numeric/wide_complex.h"
#include "numeric/wide_trigonometric.h"

namespace calquo {
namespace {

/// Makes errors point at the imaginary part of a literal "(re; im)", for steps that work on that part alone.
void reportErrorsAtImaginaryPart(const Value& v) {
    if (v.positions.imaginaryPartEnd != -1) {
        setErrorPosition(v.positions.imaginaryPartEnd);
    }
}

/// u^2 + v^2.
Real squaredModulus(const Value& w) { return addReal(sqrReal(w.re), sqrReal(w.im)); }

}  // namespace

void reportErrorsAt(const Value& v) {
    if (v.positions.literalStart != -1) {
        setErrorPosition(v.positions.literalStart);
    }
}

Value add(const Value& z, const Value& w) {
    reportErrorsAt(w);
    const Real re = addReal(z.re, w.re);
    reportErrorsAtImaginaryPart(w);
    return Value(re, addReal(z.im, w.im)).at(w.positions);
}

Value sub(const Value& z, const Value& w) {
    reportErrorsAt(w);
    const Real re = subReal(z.re, w.re);
    reportErrorsAtImaginaryPart(w);
    return Value(re, subReal(z.im, w.im)).at(w.positions);
}

Value mul(const Value& z, const Value& w) {
    reportErrorsAt(w);
    const Real re = subReal(mulReal(z.re, w.re), mulReal(z.im, w.im));
    const Real im = addReal(mulReal(z.im, w.re), mulReal(z.re, w.im));
    return Value(re, im).at(w.positions);
}

Value div(const Value& z, const Value& w) {
    reportErrorsAt(w);
    const Real n = squaredModulus(w);
    const Real re = addReal(mulReal(z.im, w.im), mulReal(z.re, w.re));
    // The real part is divided before the imaginary one is looked at.
    if (n == 0) {
        raise(ErrorCode::DivisionByZero);
    }
    const Real im = subReal(mulReal(z.im, w.re), mulReal(z.re, w.im));
    Value result;
    if (!isFinite(z) || std::isnan(n)) {
        result = Value(re / n, im / n);
    } else if (w.im == 0) {
        result = Value(z.re / w.re, z.im == 0 ? im : z.im / w.re);
    } else {
        result = rounded(wideComplex(z) / wideComplex(w));
    }
    return Value(inRange(result.re), inRange(result.im)).at(w.positions);
}

Value neg(const Value& z) {
    reportErrorsAt(z);
    const Real re = negReal(z.re);
    reportErrorsAtImaginaryPart(z);
    return Value(re, negReal(z.im)).at(z.positions);
}

Value conj(const Value& z) {
    reportErrorsAt(z);
    reportErrorsAtImaginaryPart(z);
    return Value(z.re, negReal(z.im)).at(z.positions);
}

Value pct(const Value& z) { return div(z, Value(100)).at(z.positions); }

Value inv(const Value& z) {
    reportErrorsAt(z);
    if (z.im == 0) {
        return Value(recipReal(z.re)).at(z.positions);
    }
    const Real n = squaredModulus(z);
    if (n == 0) {
        raise(ErrorCode::DivisionByZero);
    }
    if (!isFinite(z)) {
        return notANumber(z);
    }
    const Value result = rounded(conjugate(wideComplex(z)) * reciprocal(squaredModulus(wideComplex(z))));
    return Value(inRange(result.re), inRange(result.im)).at(z.positions);
}

Value sqr(const Value& z) {
    reportErrorsAt(z);
    const Real re = subReal(sqrReal(z.re), sqrReal(z.im));
    const Real im = mulReal(2, mulReal(z.re, z.im));
    if (z.im == 0 || !isFinite(z)) {
        return Value(re, im).at(z.positions);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    return Value(toReal((x - y) * (x + y)), toReal(2 * x * y)).at(z.positions);
}

Value cube(const Value& z) {
    reportErrorsAt(z);
    const Real xx = sqrReal(z.re);
    const Real yy = sqrReal(z.im);
    const Real re = subReal(mulReal(xx, z.re), mulReal(3, mulReal(z.re, yy)));
    const Real im = subReal(mulReal(3, mulReal(xx, z.im)), mulReal(yy, z.im));
    if (!isFinite(z)) {
        return Value(re, im).at(z.positions);
    }
    const SignedWide x = z.re;
    const SignedWide y = z.im;
    const SignedWide squareOfX = x * x;
    const SignedWide squareOfY = y * y;
    return rounded({x * (squareOfX - 3 * squareOfY), y * (3 * squareOfX - squareOfY)}).at(z.positions);
}

Value real(const Value& z) { return Value(z.re).at(z.positions); }

Value imag(const Value& z) { return Value(z.im).at(z.positions); }

Value norm2(const Value& z) {
    reportErrorsAt(z);
    const Real n = squaredModulus(z);
    return Value(z.im == 0 || z.re == 0 || std::isnan(n) ? n : toReal(squaredModulus(wideComplex(z)))).at(z.positions);
}

Value abs(const Value& z) {
    reportErrorsAt(z);
    if (z.re == 0) {
        return Value(absReal(z.im)).at(z.positions);
    }
    if (z.im == 0) {
        return Value(absReal(z.re)).at(z.positions);
    }
    // For its errors; what underflows in it is not lost below.
    squaredModulus(z);
    return isFinite(z) ? Value(toReal(squareRoot(squaredModulus(wideComplex(z))))).at(z.positions) : notANumber(z);
}

Value arg(const Value& z) {
    checkValue(z, CheckFlags::Report);
    if (!isFinite(z)) {
        return Value(z.re + z.im).at(z.positions);
    }
    return Value(toReal(wideArcTangent(z.im, z.re))).at(z.positions);
}

Value sign(const Value& z) {
    reportErrorsAt(z);
    if (z.im == 0) {
        return Value(signReal(z.re)).at(z.positions);
    }
    // The steps of z / |z|.
    const Value result = div(z, abs(z));
    if (!isFinite(result)) {
        return result;
    }
    const WideComplex wide = wideComplex(z);
    return rounded(wide * reciprocal(squareRoot(squaredModulus(wide)))).at(z.positions);
}

Value polar(const Value& r, const Value& angle) {
    requireReal(r, CheckFlags::Report);
    requireReal(angle, CheckFlags::Report);
    if (!isFinite(r) || !isFinite(angle)) {
        return notANumber(angle);
    }
    const SineCosine circle = wideSineCosine(angle.re);
    return rounded({r.re * circle.cosine, r.re * circle.sine}).at(angle.positions);
}

}  // namespace calquo
