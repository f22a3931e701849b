// Checked operations that go through the mathematics library, and the raising of range errors.
#include "numeric/checked_real.h"

#include <cmath>

#include "numeric/angle_reduction.h"
#include "numeric/wide_logarithm.h"

namespace calquo {
namespace {

/// Sine of a finite angle that is the given number of quarter turns ahead.
Real sineOf(Real x, unsigned quarters) {
    const ReducedAngle reduced = reduceAngle(std::fabs(x));
    const Real a = reduced.angle;
    const unsigned quadrant = reduced.quadrant + quarters;
    // The rest is so small that of the other function a few bits suffice.
    const Real result = quadrant % 2 == 0 ? std::sin(a) + reduced.rest * (1 - a * a / 2)
                                          : std::cos(a) - reduced.rest * (a - a * a * a / 6);
    return (quadrant & 2) != 0 ? (x < 0 ? result : -result) : (x < 0 ? -result : result);
}

}  // namespace

[[noreturn]] void raiseOutOfRange() { raise(ErrorCode::DomainRange); }

Real signReal(Real a) {
    inRange(a);
    if (a < 0) {
        return -1;
    }
    return a > 0 ? 1 : 0;
}

Real sinReal(Real a) { return std::isfinite(a) ? sineOf(a, 0) : a - a; }

Real cosReal(Real a) { return std::isfinite(a) ? sineOf(std::fabs(a), 1) : a - a; }

Real sinhReal(Real a) { return inRange(std::sinh(a)); }

Real coshReal(Real a) { return inRange(std::cosh(a)); }

Real expReal(Real a) {
    if (a < lowestExponent || a > highestExponent) {
        raise(ErrorCode::LimitExceeded);
    }
    return a == 0 || std::isnan(a) ? 1 + a : toReal(wideExponential({wideFloat(std::fabs(a)), a < 0}));
}

Real lnReal(Real a) {
    checkNumber(a, CheckFlags::Report | CheckFlags::NoNegative | CheckFlags::NoZero, errorPosition());
    return std::isnan(a) ? a : toReal(wideLogarithm(a));
}

}  // namespace calquo
