// Primality by Miller-Rabin, factors by Pollard's rho, both on Montgomery residues.
#include "numeric/primes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

#include "numeric/checks.h"
#include "numeric/montgomery.h"
#include "numeric/words.h"
#include "values/errors.h"

namespace calquo {
namespace {

constexpr std::array<std::uint64_t, 12> bases = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37};

/// Whether n = 2^s d + 1 behaves as a prime does toward one base: base^d is 1, or one of its first s squarings -1.
bool passesBase(const Montgomery& field, std::uint64_t n, std::uint64_t base) {
    const int s = std::countr_zero(n - 1);
    const std::uint64_t minusOne = field.subtract(0, field.one());
    std::uint64_t square = field.residue(base);
    std::uint64_t power = field.one();
    for (std::uint64_t d = (n - 1) >> s; d != 0; d >>= 1) {
        if ((d & 1) != 0) {
            power = field.multiply(power, square);
        }
        square = field.multiply(square, square);
    }
    if (power == field.one() || power == minusOne) {
        return true;
    }
    for (int round = 1; round < s; ++round) {
        power = field.multiply(power, power);
        if (power == minusOne) {
            return true;
        }
    }
    return false;
}

/// Primality of any word.
bool isPrimeWord(std::uint64_t n) {
    for (const std::uint64_t base : bases) {
        if (n % base == 0) {
            return n == base;
        }
    }
    if (n < bases.back() * bases.back()) {
        return n > 1;
    }
    const Montgomery field(n);
    return std::ranges::all_of(bases, [&](std::uint64_t base) { return passesBase(field, n, base); });
}

/// One walk x -> x^2 + addend modulo a composite odd n, until two of its numbers agree modulo a factor. Answers that
/// factor, or n when they agree modulo all of n at once.
std::uint64_t walkForFactor(const Montgomery& field, std::uint64_t n, std::uint64_t addend) {
    constexpr std::uint64_t batch = 128;
    const auto step = [&](std::uint64_t x) { return field.add(field.multiply(x, x), addend); };
    std::uint64_t x = addend;
    for (std::uint64_t length = 1;; length *= 2) {
        const std::uint64_t anchor = x;
        for (std::uint64_t walked = 0; walked < length; walked += batch) {
            // One greatest common divisor serves a batch of differences.
            const std::uint64_t batchStart = x;
            std::uint64_t product = field.one();
            for (std::uint64_t count = std::min(batch, length - walked); count > 0; --count) {
                x = step(x);
                product = field.multiply(product, field.subtract(x, anchor));
            }
            std::uint64_t factor = std::gcd(product, n);
            if (factor == n) {
                x = batchStart;
                do {
                    x = step(x);
                    factor = std::gcd(field.subtract(x, anchor), n);
                } while (factor == 1);
            }
            if (factor != 1) {
                return factor;
            }
        }
    }
}

/// The smallest prime factor of an odd n > 1 without very small ones.
std::uint64_t smallestLargeFactor(std::uint64_t n) {
    if (isPrimeWord(n)) {
        return n;
    }
    const Montgomery field(n);
    std::uint64_t factor = n;
    for (std::uint64_t addend = 1; factor == n; ++addend) {
        factor = walkForFactor(field, n, field.residue(addend));
    }
    return std::min(smallestLargeFactor(factor), smallestLargeFactor(n / factor));
}

}  // namespace

bool isPrime(std::uint64_t n) {
    if (n > largestTested) {
        raise(ErrorCode::LimitExceeded);
    }
    return isPrimeWord(n);
}

std::uint64_t nextPrime(std::uint64_t n) {
    if (n > largestBeforeNext) {
        raise(ErrorCode::LimitExceeded);
    }
    if (n < 2) {
        return 2;
    }
    std::uint64_t candidate = (n + 1) | 1;
    while (!isPrime(candidate)) {
        candidate += 2;
    }
    return candidate;
}

std::uint64_t previousPrime(std::uint64_t n) {
    if (n < 3) {
        return 0;
    }
    std::uint64_t candidate = (n | 1) - 2;
    while (candidate >= 3 && !isPrime(candidate)) {
        candidate -= 2;
    }
    return std::max<std::uint64_t>(candidate, 2);
}

std::uint64_t smallestPrimeFactor(std::uint64_t n) {
    constexpr std::uint64_t trialLimit = 256;
    if (n % 2 == 0) {
        return 2;
    }
    for (std::uint64_t divisor = 3; divisor < trialLimit; divisor += 2) {
        if (n % divisor == 0) {
            return divisor;
        }
    }
    return smallestLargeFactor(n);
}

Value prime(const Value& v) { return Value(isPrime(toUnsignedWord(v)) ? 1 : 0).at(v.positions); }

Value prNext(const Value& v) { return fromWord(nextPrime(toUnsignedWord(v, CheckFlags::Report))).at(v.positions); }

Value prPrev(const Value& v) { return fromWord(previousPrime(toUnsignedWord(v, CheckFlags::Report))).at(v.positions); }

}  // namespace calquo
