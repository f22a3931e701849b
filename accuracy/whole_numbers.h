// Exact answers of the functions of whole numbers, by GMP.
#pragma once

#include <cstdint>
#include <vector>

#include "functions.h"

namespace calquo {

/// A whole number of a range of words, the fraction cut off.
std::uint64_t wordFrom(Real x);

/// 1 or 0; the second argument of these three is not there.
std::uint64_t isPrime(std::uint64_t n, std::uint64_t);
std::uint64_t nextPrime(std::uint64_t n, std::uint64_t);
std::uint64_t previousPrime(std::uint64_t n, std::uint64_t);

/// Of positive numbers; 0 for an empty list.
std::uint64_t greatestDivisor(const std::vector<std::uint64_t>& numbers);
/// Modulo 2^64.
std::uint64_t leastMultiple(const std::vector<std::uint64_t>& numbers);

/// a / b, truncated, and what it leaves.
Exact quotient(Arguments a);
Exact remainder(Arguments a);

}  // namespace calquo
