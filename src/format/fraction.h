// The closest fraction to a number with a bounded denominator.
#pragma once

#include "values/uint128.h"
#include "values/value.h"

namespace calquo {

struct Fraction {
    UInt128 numerator;
    UInt128 denominator = {0, 1};
};

/// Largest limit on a denominator.
constexpr UInt128 largestDenominator = {UINT64_MAX / 2, UINT64_MAX};

/// The fraction closest to x with a denominator of at most limit, in lowest terms; of two equally close ones that with
/// the smaller denominator.
///
/// Method: the continued fraction of the exact binary value; the best approximation is the last convergent within the
/// limit or the furthest semiconvergent after it, whichever is closer (Khinchin, Continued Fractions, theorem 15).
/// @param x 0 <= x < 1
/// @param limit 1 to largestDenominator
Fraction closestFraction(Real x, UInt128 limit);

}  // namespace calquo
