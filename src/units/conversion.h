// Conversion of a number from one unit to another.
#pragma once

#include "values/value.h"

namespace calquo {

/// x units `from`, expressed in units `to`: ((x - offset of from) / factor of to) * factor of from + offset of to,
/// where a unit's real part is its factor and its imaginary part the offset of a temperature scale. Dimensions are not
/// checked: a metre is one second. Raises 11 for a complex x at the end of its literal, 22 for a target factor of 0,
/// and 6 when a step overflows. The result is real and has no positions.
Value convert(const Value& x, const Value& from, const Value& to);

}  // namespace calquo
