// Division of whole numbers: the quotient cut toward zero, and what remains.
#pragma once

#include "values/value.h"

namespace calquo {

/// Both need real (11), whole (12) operands, negative ones allowed, and a divisor other than 0 (22). The results carry
/// b's positions.

/// The whole part of a / b, cut toward zero: exact below 2^64, beyond that rounded. It is the quotient that bears this
/// name here, not the remainder.
Value mod(const Value& a, const Value& b);

/// The remainder of that division, always exact; it has the sign of a.
Value rem(const Value& a, const Value& b);

}  // namespace calquo
