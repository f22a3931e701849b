// Angles of any size taken back to an eighth of a circle, so that the circular functions are right for every number.
#pragma once

#include "numeric/signed_wide.h"

namespace calquo {

/// pi and half of it to 128 bits.
inline constexpr SignedWide widePi = WideFloat{{0xC90FDAA22168C234, 0xC4C6628B80DC1CD1}, -126};
inline constexpr SignedWide wideHalfPi = WideFloat{widePi.magnitude.mantissa, widePi.magnitude.exponent - 1};

/// An angle in radians as quadrant * pi/2 + angle.
struct ReducedAngle {
    unsigned quadrant = 0;  ///< modulo 4
    SignedWide angle;       ///< at most pi/4 in magnitude
};

/// Reduces a finite x. The angle is within 2^-100 of itself.
///
/// Method: Payne and Hanek, Radian Reduction for Trigonometric Functions, 1983: x times those 256 bits of 2/pi that can
/// reach the last two bits of the whole part or its fraction.
ReducedAngle reduceAngle(Real x);

/// Reduces a wide angle that an extended number could hold. The reduced one is within 2^-120 |x|, so that of an x from
/// 2^120 on nothing is right but its magnitude.
ReducedAngle reduceAngle(const SignedWide& x);

/// Reduces x half turns, exactly but for the last multiplication by pi; whole quarter turns have an angle of 0.
ReducedAngle reduceHalfTurns(const SignedWide& x);

}  // namespace calquo
