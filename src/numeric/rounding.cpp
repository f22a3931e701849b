// Rounding over the split of a number into its whole part and its fraction.
#include "numeric/rounding.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"

namespace calquo {
namespace {

/// What keeps its value whatever the rounding. A signalling NaN must not even pass through the mathematics library,
/// which would make it quiet.
bool isNaN(Real x) { return std::isunordered(x, x); }

Value partByPart(const Value& z, Real (*operation)(Real)) {
    reportErrorsAt(z);
    const Real re = operation(z.re);
    return Value(re, operation(z.im)).at(z.positions);
}

}  // namespace

Real whole(Real x) { return isNaN(x) ? x : std::trunc(inRange(x)); }

Real fraction(Real x) { return isNaN(x) ? x : x - whole(x); }

Real floor(Real x) { return isNaN(x) ? x : std::floor(inRange(x)); }

Real ceil(Real x) { return isNaN(x) ? x : std::ceil(inRange(x)); }

Real round(Real x) {
    const Real n = whole(x);
    const Real f = fraction(x);
    if (f <= -0.5L) {
        return n - 1;
    }
    return f >= 0.5L ? n + 1 : n;
}

Real sRound(Real x) {
    const Real n = whole(x);
    const Real f = fraction(x);
    const bool odd = fraction(n / 2) != 0;
    if (f < -0.5L || (f == -0.5L && odd)) {
        return n - 1;
    }
    return f > 0.5L || (f == 0.5L && odd) ? n + 1 : n;
}

Value whole(const Value& z) { return partByPart(z, whole); }

Value fraction(const Value& z) { return partByPart(z, fraction); }

Value floor(const Value& z) { return partByPart(z, floor); }

Value ceil(const Value& z) { return partByPart(z, ceil); }

Value round(const Value& z) { return partByPart(z, round); }

Value sRound(const Value& z) { return partByPart(z, sRound); }

}  // namespace calquo
