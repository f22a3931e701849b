// Prime numbers: the test, the neighbours and the smallest factor of 64-bit words, and the functions of the language.
#pragma once

#include <cstdint>

#include "values/value.h"

namespace calquo {

/// The largest number that isPrime answers for, a prime itself, and the largest whose next prime is searched.
constexpr std::uint64_t largestTested = 1000000000000037;
constexpr std::uint64_t largestBeforeNext = 1000000000000000;

/// Whether n is prime; raises 9 ("limit exceeded") above largestTested. Proven, not probable: Miller-Rabin with the
/// first twelve primes as bases decides every number below 3.1e23 (J. Sorenson, J. Webster, 2015).
bool isPrime(std::uint64_t n);

/// The smallest prime above n; raises 9 for n above largestBeforeNext.
std::uint64_t nextPrime(std::uint64_t n);

/// The largest prime below n, and 0 for n < 3, where there is none or, for n = 2, deliberately so. Raises 9 when the
/// search starts above largestTested.
std::uint64_t previousPrime(std::uint64_t n);

/// The smallest prime factor of any word n >= 2; n itself for a prime. Pollard's rho with Brent's cycle search
/// (R. P. Brent, An Improved Monte Carlo Factorization Algorithm, 1980): some 10^5 multiplications at most.
std::uint64_t smallestPrimeFactor(std::uint64_t n);

/// 1 for a prime, else 0. v must be a word (11, 6, 12, 13). Carries v's positions.
Value prime(const Value& v);

/// nextPrime and previousPrime of v, a fraction cut off first; v must be real (11), a word (6), not negative (13). They
/// carry v's positions.
Value prNext(const Value& v);
Value prPrev(const Value& v);

}  // namespace calquo
