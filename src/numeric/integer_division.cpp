// Quotient and remainder of whole numbers.
#include "numeric/integer_division.h"

#include "numeric/checked_real.h"
#include "numeric/checks.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/rounding.h"

namespace calquo {
namespace {

Real quotient(const Value& a, const Value& b) {
    requireReal(a, CheckFlags::Report | CheckFlags::NoFraction);
    requireReal(b, CheckFlags::Report | CheckFlags::NoFraction);
    pointAt(b);
    return divReal(a.re, b.re);
}

}  // namespace

Value mod(const Value& a, const Value& b) { return Value(whole(quotient(a, b))).at(b.positions); }

Value rem(const Value& a, const Value& b) {
    // The rounding takes away the error of the quotient's fraction.
    return Value(round(mulReal(fraction(quotient(a, b)), b.re))).at(b.positions);
}

}  // namespace calquo
