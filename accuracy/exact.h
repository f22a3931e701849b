// The exact values of the language's functions of complex numbers: each is the formula that defines it, computed with
// tracked numbers, and refuses what a step of the formula refuses.
#pragma once

#include <complex>

#include "tracked.h"
#include "values/errors.h"

namespace calquo {

/// The error that a formula ends in.
struct Refusal {
    ErrorCode code;
};

/// A complex number x + iy.
struct Exact {
    Tracked re;
    Tracked im;

    Exact(const Tracked& real, const Tracked& imaginary = 0) : re(real), im(imaginary) {}
    Exact(Real real) : re(real) {}
    Exact(const std::complex<Real>& z) : re(z.real()), im(z.imag()) {}

    [[nodiscard]] bool isReal() const { return im.isZero(); }
};

/// The number. Throws Refusal with 6 ("domain range") for one above the largest extended number.
const Tracked& inRange(const Tracked& number);

Exact operator+(const Exact& z, const Exact& w);
Exact operator-(const Exact& z, const Exact& w);
Exact operator*(const Exact& z, const Exact& w);
/// 22 and 6 where |w|^2 leaves the range of extended numbers.
Exact operator/(const Exact& z, const Exact& w);
Exact operator-(const Exact& z);

Exact inv(const Exact& z);
Exact sqr(const Exact& z);
Exact cube(const Exact& z);
Exact norm2(const Exact& z);
Exact abs(const Exact& z);
Exact arg(const Exact& z);
Exact sign(const Exact& z);
Exact polar(const Exact& r, const Exact& angle);

Exact exp(const Exact& z);
Exact ln(const Exact& z);
Exact logB(const Exact& z, const Exact& base);
Exact pow(const Exact& z, const Exact& w);
Exact root(const Exact& z, const Exact& degree);
Exact sqrt(const Exact& z);

Exact sin(const Exact& z);
Exact cos(const Exact& z);
Exact tan(const Exact& z);
Exact sinH(const Exact& z);
Exact cosH(const Exact& z);
Exact tanH(const Exact& z);
Exact aSin(const Exact& z);
Exact aCos(const Exact& z);
Exact aTan(const Exact& z);
Exact aSinH(const Exact& z);
Exact aCosH(const Exact& z);
Exact aTanH(const Exact& z);
Exact aCotH(const Exact& z);

}  // namespace calquo
