// The closest fraction to a number with a bounded denominator.
#pragma once

#include <cstdint>

#include "values/value.h"

namespace calquo {

struct Fraction {
    std::uint64_t numerator = 0;
    std::uint64_t denominator = 1;
};

/// Largest limit on a denominator; numbers of 1 and above need no larger one to be exact.
constexpr std::uint64_t largestDenominator = UINT64_MAX / 2;

/// The fraction closest to x with a denominator of at most limit, in lowest terms; of two equally close ones that with
/// the smaller denominator.
///
/// Method: the continued fraction of the exact binary value; the best approximation is the last convergent within the
/// limit or the furthest semiconvergent behind it, whichever is closer (Khinchin, Continued Fractions, theorem 15).
/// @param x 0 <= x < 1
/// @param limit 1 to largestDenominator
Fraction closestFraction(Real x, std::uint64_t limit);

}  // namespace calquo
