// GMP's functions on whole numbers, behind the limits of the language.
#include "whole_numbers.h"

#include <gmpxx.h>

#include <cmath>
#include <numeric>

namespace calquo {
namespace {

constexpr std::uint64_t largestTested = 1000000000000037;
constexpr std::uint64_t largestWithNext = 1000000000000000;

void checkLimit(std::uint64_t n, std::uint64_t limit) {
    if (n > limit) {
        throw Refusal{ErrorCode::LimitExceeded};
    }
}

bool certainlyPrime(std::uint64_t n) {
    constexpr int rounds = 30;
    return mpz_probab_prime_p(mpz_class(n).get_mpz_t(), rounds) != 0;
}

}  // namespace

std::uint64_t wordFrom(Real x) { return static_cast<std::uint64_t>(x); }

std::uint64_t isPrime(std::uint64_t n, std::uint64_t) {
    checkLimit(n, largestTested);
    return certainlyPrime(n) ? 1 : 0;
}

std::uint64_t nextPrime(std::uint64_t n, std::uint64_t) {
    checkLimit(n, largestWithNext);
    mpz_class next(n);
    mpz_nextprime(next.get_mpz_t(), next.get_mpz_t());
    return next.get_ui();
}

std::uint64_t previousPrime(std::uint64_t n, std::uint64_t) {
    if (n < 3) {
        return 0;
    }
    checkLimit(n - 1, largestTested);
    do {
        --n;
    } while (!certainlyPrime(n));
    return n;
}

std::uint64_t greatestDivisor(const std::vector<std::uint64_t>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), std::uint64_t{0}, std::gcd<std::uint64_t, std::uint64_t>);
}

std::uint64_t leastMultiple(const std::vector<std::uint64_t>& numbers) {
    mpz_class multiple = numbers.empty() ? 0 : 1;
    for (const std::uint64_t number : numbers) {
        multiple = lcm(multiple, mpz_class(number));
    }
    const mpz_class words = mpz_class(1) << 64;
    return mpz_class(multiple % words).get_ui();
}

Exact quotient(Arguments a) { return {(Tracked(a[0].real()) - remainder(a).re) / a[1].real()}; }

Exact remainder(Arguments a) { return std::fmod(a[0].real(), a[1].real()); }

}  // namespace calquo
