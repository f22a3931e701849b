// The formulas. Real steps whose results may leave the range are checked one by one, as the language asks.
#include "exact.h"

#include <algorithm>
#include <cmath>

#include "values/extended.h"

namespace calquo {
namespace {

const std::complex<Real> imaginaryUnit{0, 1};

[[noreturn]] void refuse(ErrorCode code) { throw Refusal{code}; }

/// |w|^2 as a divisor: 22 where it rounds to 0, 6 above the range.
Tracked divisor(const Exact& w) {
    constexpr long belowDenormals = ExtendedBits::smallestExponent - 1;
    const Tracked n = inRange(inRange(w.re * w.re) + inRange(w.im * w.im));
    if (n.exponent() <= belowDenormals) {
        if (n.error() > belowDenormals) {
            throw Undecided();
        }
        refuse(ErrorCode::DivisionByZero);
    }
    return n;
}

/// The limits of exponents of e.
void checkExponent(const Tracked& x) {
    constexpr Real lowest = -11358.65226L, highest = 11356.5234L;
    inRange(x);
    if (x < lowest || x > highest) {
        refuse(ErrorCode::LimitExceeded);
    }
}

/// Whether both parts lie within 2 units in the last place of x of an odd multiple of pi / 2; from 2^31 on, where units
/// are larger, within 2^-32.
bool isAtPole(const Exact& z) {
    const long vicinity = std::min(z.re.exponent() - 63, -32L);
    if (z.re.isZero() || z.im.exponent() > vicinity + 1) {
        return false;
    }
    const Tracked pi = Tracked::pi(), largest = std::ldexp(Real(1), static_cast<int>(vicinity));
    const Tracked distance = z.re - (someWholeNextTo(z.re / pi - Real(0.5)) + Real(0.5)) * pi;
    return !(abs(distance) > largest) && !(abs(z.im) > largest);
}

bool isWhole(const Tracked& x) { return x.isExact() && mpfr_integer_p(x.get()) != 0; }

}  // namespace

const Tracked& inRange(const Tracked& number) {
    if (number.exponent() > std::numeric_limits<Real>::max_exponent) {
        refuse(ErrorCode::DomainRange);
    }
    return number;
}

Exact operator+(const Exact& z, const Exact& w) { return {inRange(z.re + w.re), inRange(z.im + w.im)}; }

Exact operator-(const Exact& z, const Exact& w) { return {inRange(z.re - w.re), inRange(z.im - w.im)}; }

Exact operator*(const Exact& z, const Exact& w) {
    return {inRange(inRange(z.re * w.re) - inRange(z.im * w.im)), inRange(inRange(z.im * w.re) + inRange(z.re * w.im))};
}

Exact operator/(const Exact& z, const Exact& w) {
    const Tracked n = divisor(w);
    const Exact product = z * Exact(w.re, -w.im);
    return {inRange(product.re / n), inRange(product.im / n)};
}

Exact operator-(const Exact& z) { return {-z.re, -z.im}; }

Exact inv(const Exact& z) {
    if (!z.isReal()) {
        return 1 / z;
    }
    if (z.re.isZero()) {
        refuse(ErrorCode::DivisionByZero);
    }
    return {inRange(1 / z.re)};
}

Exact sqr(const Exact& z) {
    return {inRange(inRange(z.re * z.re) - inRange(z.im * z.im)), inRange(2 * inRange(z.re * z.im))};
}

Exact cube(const Exact& z) {
    const Tracked xx = inRange(z.re * z.re), yy = inRange(z.im * z.im);
    return {inRange(inRange(xx * z.re) - inRange(3 * inRange(z.re * yy))),
            inRange(inRange(3 * inRange(xx * z.im)) - inRange(yy * z.im))};
}

Exact norm2(const Exact& z) { return {inRange(inRange(z.re * z.re) + inRange(z.im * z.im))}; }

Exact abs(const Exact& z) {
    if (z.re.isZero() || z.im.isZero()) {
        return {hypot(z.re, z.im)};
    }
    return {sqrt(norm2(z).re)};
}

Exact arg(const Exact& z) { return {atan2(z.im, z.re)}; }

Exact sign(const Exact& z) { return z.isReal() ? Exact(Real(z.re.sign())) : z / abs(z); }

Exact polar(const Exact& r, const Exact& angle) { return {r.re * cos(angle.re), r.re * sin(angle.re)}; }

Exact exp(const Exact& z) {
    checkExponent(z.re);
    const Tracked modulus = exp(z.re);
    return z.isReal() ? Exact(modulus) : Exact(modulus * cos(z.im), modulus * sin(z.im));
}

Exact ln(const Exact& z) {
    if (z.re.isZero() && z.im.isZero()) {
        refuse(ErrorCode::CannotBeZero);
    }
    return {log(hypot(z.re, z.im)), atan2(z.im, z.re)};
}

Exact logB(const Exact& z, const Exact& base) {
    const Exact numerator = ln(z), denominator = ln(base);
    // Each part of a complex base is checked.
    if ((base.re - 1).isZero() || (base.im - 1).isZero()) {
        refuse(ErrorCode::CannotBeOne);
    }
    return numerator / denominator;
}

Exact pow(const Exact& z, const Exact& w) {
    if (z.isReal() && z.re.isZero()) {
        return Real(0);
    }
    Exact power = exp(ln(z) * w);
    if (z.isReal() && z.re.sign() < 0 && w.isReal() && isWhole(w.re)) {
        // The imaginary part keeps what rounding leaves of k pi.
        return {power.re, abs(power.re) * sin(Tracked(pi * mpfr_get_ld(w.re.get(), MPFR_RNDN)))};
    }
    return power;
}

Exact root(const Exact& z, const Exact& degree) { return pow(z, inv(degree)); }

Exact sqrt(const Exact& z) {
    if (z.isReal()) {
        const Tracked magnitude = sqrt(abs(z.re));
        return z.re.sign() < 0 ? Exact(0, magnitude) : Exact(magnitude);
    }
    // The part that is a sum of equal signs, and the other one from it.
    const Tracked modulus = hypot(z.re, z.im);
    const bool isRight = mpfr_sgn(z.re.get()) >= 0;
    const Tracked larger = sqrt((isRight ? modulus + z.re : modulus - z.re) / 2);
    const Tracked smaller = z.im / (2 * larger);
    if (isRight) {
        return {larger, smaller};
    }
    return z.im.sign() < 0 ? Exact(-smaller, -larger) : Exact(smaller, larger);
}

Exact sin(const Exact& z) {
    const Tracked growth = inRange(cosh(z.im));
    return {sin(z.re) * growth, cos(z.re) * sinh(z.im)};
}

Exact cos(const Exact& z) {
    const Tracked growth = inRange(cosh(z.im));
    return {cos(z.re) * growth, -(sin(z.re) * sinh(z.im))};
}

Exact tan(const Exact& z) {
    if (isAtPole(z)) {
        refuse(ErrorCode::DivisionByZero);
    }
    const Tracked x2 = inRange(2 * z.re), y2 = inRange(2 * z.im);
    const Tracked denominator = inRange(cos(x2) + inRange(cosh(y2)));
    return {inRange(sin(x2) / denominator), inRange(sinh(y2) / denominator)};
}

Exact sinH(const Exact& z) { return (exp(z) - exp(-z)) / Real(2); }

Exact cosH(const Exact& z) { return (exp(z) + exp(-z)) / Real(2); }

Exact tanH(const Exact& z) { return (exp(z) - exp(-z)) / (exp(z) + exp(-z)); }

Exact aSin(const Exact& z) { return -(imaginaryUnit * ln(imaginaryUnit * z + sqrt(Real(1) - sqr(z)))); }

Exact aCos(const Exact& z) { return Tracked::pi() / Real(2) - aSin(z); }

Exact aTan(const Exact& z) {
    const Exact iz = imaginaryUnit * z;
    return (ln(Real(1) + iz) - ln(Real(1) - iz)) / (Real(2) * Exact(imaginaryUnit));
}

Exact aSinH(const Exact& z) { return ln(z + sqrt(sqr(z) + Real(1))); }

Exact aCosH(const Exact& z) { return ln(z + sqrt(sqr(z) - Real(1))); }

Exact aTanH(const Exact& z) { return ln((Real(1) + z) / (Real(1) - z)) / Real(2); }

Exact aCotH(const Exact& z) { return ln((z + Real(1)) / (z - Real(1))) / Real(2); }

}  // namespace calquo
