// Quotient and remainder of whole numbers.
#include "numeric/integer_division.h"

#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/checks.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/signed_wide.h"

namespace calquo {
namespace {

struct Division {
    Real quotient;
    Real remainder;
};

Division divideWhole(const Value& a, const Value& b) {
    requireReal(a, CheckFlags::Report | CheckFlags::NoFraction);
    requireReal(b, CheckFlags::Report | CheckFlags::NoFraction);
    reportErrorsAt(b);
    const Real quotient = divReal(a.re, b.re);
    // Exact; adding 0 leaves no negative zero.
    const Real remainder = std::fmod(a.re, b.re) + 0;
    // Below 2^63 a fraction of the quotient is too far from the next whole number to be rounded to it.
    if (std::fabs(a.re) < 0x1p63L || std::isnan(quotient)) {
        return {std::trunc(quotient), remainder};
    }
    return {toReal((SignedWide(a.re) - remainder) / b.re), remainder};
}

}  // namespace

Value mod(const Value& a, const Value& b) { return Value(divideWhole(a, b).quotient).at(b.positions); }

Value rem(const Value& a, const Value& b) { return Value(divideWhole(a, b).remainder).at(b.positions); }

}  // namespace calquo
