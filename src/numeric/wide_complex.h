// Complex numbers of wide parts: what the functions of complex numbers compute with between their checks and their one
// rounding.
#pragma once

#include <cmath>

#include "numeric/signed_wide.h"
#include "values/value.h"

namespace calquo {

struct WideComplex {
    SignedWide re;
    SignedWide im;
};

/// A finite value.
inline WideComplex wideComplex(const Value& z) { return {z.re, z.im}; }

inline WideComplex operator*(const WideComplex& z, const WideComplex& w) {
    return {z.re * w.re - z.im * w.im, z.im * w.re + z.re * w.im};
}
inline WideComplex operator*(const WideComplex& z, const SignedWide& factor) { return {z.re * factor, z.im * factor}; }

inline WideComplex conjugate(const WideComplex& z) { return {z.re, -z.im}; }

/// |z|^2.
inline SignedWide squaredModulus(const WideComplex& z) { return z.re * z.re + z.im * z.im; }

/// 1 / divisor for a divisor other than 0.
inline SignedWide reciprocal(const SignedWide& divisor) { return {reciprocal(divisor.magnitude), divisor.negative}; }

/// z / w for w other than 0.
inline WideComplex operator/(const WideComplex& z, const WideComplex& w) {
    return z * conjugate(w) * reciprocal(squaredModulus(w));
}

/// The principal square root, each part within 2^-118 of itself; of a negative real number it lies on the positive
/// imaginary axis, whatever the sign of its imaginary part of 0.
WideComplex squareRoot(const WideComplex& z);

/// Both parts rounded to the nearest extended number.
inline Value rounded(const WideComplex& z) { return Value(toReal(z.re), toReal(z.im)); }

/// Whether neither part is an infinity or a NaN.
inline bool isFinite(const Value& z) { return std::isfinite(z.re) && std::isfinite(z.im); }

/// What a function gives for a NaN: both parts are one. It carries the operand's positions.
Value notANumber(const Value& z);

}  // namespace calquo
