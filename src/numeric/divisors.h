// Greatest common divisors and least common multiples of lists of whole numbers.
// Every item must be an unsigned word (11, 6, 12, 13), checked from first to last; an empty list yields 0. Results are
// real values without positions.
#pragma once

#include <span>

#include "values/value.h"

namespace calquo {

/// The greatest common divisor; 0 when all items are 0.
Value gcd(std::span<const Value> items);

/// The product of the common prime factors: what dividing the items by 2, 3, 5, 7, ... in turn arrives at, where an
/// item not above the prime of the moment ends the search. That is the greatest common divisor, unless there is an item
/// 0. A zero is divisible by every prime and above none, so the result then is deliberately the smallest prime p common
/// to the items ahead of the first zero (2 if there are none) if p divides the items after it too, and otherwise 1:
/// gcf(0; 5) = 1, gcf(5; 0) = 5, gcf(9; 0) = 3.
Value gcf(std::span<const Value> items);

/// The least common multiple of the items other than 0, modulo 2^64; 1 when there are none.
Value lcm(std::span<const Value> items);

}  // namespace calquo
