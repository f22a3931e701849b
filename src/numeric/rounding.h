// Cutting and rounding to whole numbers: of one extended number, and of a complex number part by part.
#pragma once

#include "values/value.h"

namespace calquo {

/// The operations on one number raise 6 ("domain range") for an infinity at the error position, and hand a NaN back
/// unchanged. Numbers of 2^63 and above are whole already.

/// x cut toward zero, and what the cut takes off; both carry the sign of x, and whole(x) + fraction(x) is x.
Real whole(Real x);
Real fraction(Real x);

/// The largest whole number not above x, and the smallest one not below.
Real floor(Real x);
Real ceil(Real x);

/// The nearest whole number, halves away from zero.
Real round(Real x);

/// The nearest whole number, halves to the even neighbour.
Real sRound(Real x);

/// The same of the real and then of the imaginary part. The results carry z's positions.
Value whole(const Value& z);
Value fraction(const Value& z);
Value floor(const Value& z);
Value ceil(const Value& z);
Value round(const Value& z);
Value sRound(const Value& z);

}  // namespace calquo
