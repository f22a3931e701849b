// Checked sign, exponential and logarithm, and the raising of range errors.
#include "numeric/checked_real.h"

#include <cmath>

#include "numeric/wide_logarithm.h"

namespace calquo {
[[noreturn]] void raiseOutOfRange() { raise(ErrorCode::DomainRange); }

Real signReal(Real a) {
    inRange(a);
    if (a < 0) {
        return -1;
    }
    return a > 0 ? 1 : 0;
}

Real expReal(Real a) {
    limitedExponent(a);
    return a == 0 || std::isnan(a) ? 1 + a : toReal(wideExponential(a));
}

Real lnReal(Real a) {
    checkNumber(a, CheckFlags::Report | CheckFlags::NoNegative | CheckFlags::NoZero, errorPosition());
    return std::isnan(a) ? a : toReal(wideLogarithm(a));
}

}  // namespace calquo
