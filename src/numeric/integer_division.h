// Division of whole numbers: the quotient cut toward zero, and what remains.
#pragma once

#include "values/value.h"

namespace calquo {

/// Both need real (11), whole (12) operands, negative ones allowed, and a divisor other than 0 (22). Quotient and
/// remainder come from the extended quotient q = a / b, so they are exact while q has bits left for a fraction. The
/// results carry b's positions.

/// The whole part of a / b, cut toward zero. It is the quotient that bears this name here, not the remainder.
Value mod(const Value& a, const Value& b);

/// round(fraction(a / b) b), the remainder of that division; it has the sign of a.
Value rem(const Value& a, const Value& b);

}  // namespace calquo
