// Angles of any size taken back to an eighth of a circle, so that sine and cosine are right for every number, whatever
// the mathematics library does with large ones.
#pragma once

#include "values/value.h"

namespace calquo {

/// An angle in radians as quadrant * pi/2 + angle + rest.
struct ReducedAngle {
    unsigned quadrant = 0;  ///< modulo 4
    Real angle = 0;         ///< at most pi/4 in magnitude
    Real rest = 0;          ///< at most half a unit in the last place of the angle
};

/// Reduces a finite x of 0 or more. The sum of angle and rest is within 2^-100 of itself.
///
/// Method: Payne and Hanek, Radian Reduction for Trigonometric Functions, 1983: x times those 256 bits of 2/pi that can
/// reach the last two bits of the whole part or its fraction.
ReducedAngle reduceAngle(Real x);

}  // namespace calquo
