// Checked operations that go through the mathematics library, and the raising of range errors.
#include "numeric/checked_real.h"

#include <cmath>

namespace calquo {

[[noreturn]] void raiseOutOfRange() { raise(ErrorCode::DomainRange); }

Real signReal(Real a) {
    inRange(a);
    if (a < 0) {
        return -1;
    }
    return a > 0 ? 1 : 0;
}

Real sinReal(Real a) { return inRange(std::sin(a)); }

Real cosReal(Real a) { return inRange(std::cos(a)); }

Real sinhReal(Real a) { return inRange(std::sinh(a)); }

Real coshReal(Real a) { return inRange(std::cosh(a)); }

Real expReal(Real a) {
    if (a < lowestExponent || a > highestExponent) {
        raise(ErrorCode::LimitExceeded);
    }
    return std::exp(a);
}

Real lnReal(Real a) {
    checkNumber(a, CheckFlags::Report | CheckFlags::NoNegative | CheckFlags::NoZero, errorPosition());
    return std::log(a);
}

}  // namespace calquo
