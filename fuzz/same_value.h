// Whether two values are the same to the last bit.
#pragma once

#include "values/extended.h"
#include "values/value.h"

namespace calquo {

/// Whether a value can be read back at all: the language refuses to negate infinities, and NaNs are never the same.
inline bool isWrittenWithoutLoss(const Value& value) {
    return !bitsOf(value.re).special() && !bitsOf(value.im).special();
}

/// Zeros are the same whatever their sign, which is not written.
inline bool isSameNumber(Real a, Real b) {
    const ExtendedBits left = bitsOf(a);
    const ExtendedBits right = bitsOf(b);
    return (a == 0 && b == 0) || (left.mantissa == right.mantissa && left.signExponent == right.signExponent);
}

inline bool isSameValue(const Value& a, const Value& b) { return isSameNumber(a.re, b.re) && isSameNumber(a.im, b.im); }

}  // namespace calquo
