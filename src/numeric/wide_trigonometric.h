// Circular and hyperbolic functions and their inverses of wide real numbers, on tables and short series in 128-bit
// fixed point. All are within 2^-90 of themselves where nothing else is said.
#pragma once

#include "numeric/angle_reduction.h"
#include "numeric/signed_wide.h"

namespace calquo {

struct SineCosine {
    SignedWide sine;
    SignedWide cosine;
};

/// Sine and cosine of a reduced angle; exactly 0 and 1 where the angle is 0.
///
/// Method: the angle is j/128 + s with 0 <= s < 2^-7; sine and cosine of j/128 are tabulated, those of s are series.
SineCosine wideSineCosine(const ReducedAngle& reduced);

/// Sine and cosine of any finite x, in radians.
inline SineCosine wideSineCosine(Real x) { return wideSineCosine(reduceAngle(x)); }

/// Hyperbolic sine and cosine of |x| below 16000.
SineCosine wideHyperbolic(Real x);

/// The angle of the point (x; y) in radians, from -pi to pi, within 2^-110 of itself; of a zero y it is 0 or, for an x
/// below 0, pi, whatever the sign of zero.
///
/// Method: the quotient of the smaller by the larger coordinate is j/64 + d; atan(j/64) is tabulated, and what is left
/// is the arc tangent of a number below 2^-6, a series.
SignedWide wideArcTangent(const SignedWide& y, const SignedWide& x);

/// ln(x + sqrt(x^2 + 1)), odd in x.
SignedWide wideInverseSine(const SignedWide& x);

/// ln(x + sqrt(x^2 - 1)) for x = 1 + excess with an excess of 0 or more.
SignedWide wideInverseCosine(const SignedWide& excess);

}  // namespace calquo
