// Primes and divisors: the fast methods against plain walks over small numbers, exact identities over large ones, and
// time bounds for the arguments on which a walk would never end.
#include "numeric/divisors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <numeric>
#include <random>
#include <vector>

#include "numeric/primes.h"
#include "values/errors.h"
#include "values/uint128.h"

namespace calquo {
namespace {

using Words = std::vector<std::uint64_t>;

constexpr std::uint64_t largestPrimeWord = 18446744073709551557U;
/// The two largest primes below 2^32; their product has no smaller factor to find.
constexpr std::uint64_t largePrimes[] = {4294967291U, 4294967279U};

std::vector<Value> toValues(const Words& words) {
    std::vector<Value> values;
    for (const std::uint64_t word : words) {
        values.emplace_back(static_cast<Real>(word));
    }
    return values;
}

bool isPrimeByTrial(std::uint64_t n) {
    std::uint64_t divisor = 2;
    while (divisor * divisor <= n && n % divisor != 0) {
        ++divisor;
    }
    return n >= 2 && divisor * divisor > n;
}

std::uint64_t nextByTrial(std::uint64_t n) {
    do {
        ++n;
    } while (!isPrimeByTrial(n));
    return n;
}

/// The search that gcf abridges: divide by one prime after another until an item is not above the prime.
std::uint64_t walkedFactor(Words items) {
    if (items.empty()) {
        return 0;
    }
    std::uint64_t result = 1;
    std::uint64_t prime = 2;
    for (bool done = false; !done;) {
        bool divisible = true;
        for (std::size_t index = 0; divisible && index < items.size(); ++index) {
            if (items[index] <= prime) {
                done = true;
            }
            divisible = items[index] % prime == 0;
        }
        if (divisible) {
            result *= prime;
            if (!done) {
                for (std::uint64_t& item : items) {
                    item /= prime;
                }
            }
        } else if (!done) {
            prime = nextByTrial(prime);
        }
    }
    return result;
}

/// The multiple of all but zeros, modulo 2^64, in digits of 32 bits, one word after another, each by a division by
/// hand.
std::uint64_t multipleByHand(const Words& words) {
    std::vector<std::uint32_t> multiple = {1};
    for (const std::uint64_t word : words) {
        if (word == 0) {
            continue;
        }
        UInt128 remainder;
        for (auto digit = multiple.rbegin(); digit != multiple.rend(); ++digit) {
            remainder = divide(shiftLeft(remainder, 32) + UInt128{0, *digit}, UInt128{0, word}).remainder;
        }
        const std::uint64_t factor = word / std::gcd(word, remainder.low);
        UInt128 carry;
        for (std::uint32_t& digit : multiple) {
            carry = carry + multiply(factor, digit);
            digit = static_cast<std::uint32_t>(carry.low);
            carry = shiftRight(carry, 32);
        }
        for (; carry != UInt128{}; carry = shiftRight(carry, 32)) {
            multiple.push_back(static_cast<std::uint32_t>(carry.low));
        }
    }
    return multiple[0] | (multiple.size() > 1 ? std::uint64_t{multiple[1]} << 32 : 0);
}

std::uint64_t factorOf(const Words& words) { return static_cast<std::uint64_t>(gcf(toValues(words)).re); }
std::uint64_t multipleOf(const Words& words) { return static_cast<std::uint64_t>(lcm(toValues(words)).re); }

void expectAsByHand(const Words& words) {
    ASSERT_EQ(factorOf(words), walkedFactor(words)) << "gcf of " << testing::PrintToString(words);
    ASSERT_EQ(multipleOf(words), multipleByHand(words)) << "lcm of " << testing::PrintToString(words);
}

TEST(Divisors, AgreeWithTheWalkAndWithThoseByHand) {
    // Few small items in every order.
    for (std::uint64_t a = 0; a < 31; ++a) {
        for (std::uint64_t b = 0; b < 31; ++b) {
            for (std::uint64_t c = 0; c < 31; ++c) {
                expectAsByHand({a, b, c});
            }
        }
    }
    // Longer lists, now and then with a zero, whose place decides what gcf answers; multiples beyond a word wrap.
    std::mt19937_64 generator(20240607);
    for (int list = 0; list < 3000; ++list) {
        const std::uint64_t common = 1 + generator() % 60;
        Words words(static_cast<std::size_t>(1 + generator() % (list % 10 == 0 ? 20 : 7)));
        for (std::uint64_t& word : words) {
            word = generator() % 6 == 0 ? 0 : common * (1 + generator() % 500);
        }
        expectAsByHand(words);
    }
    // Large words, which no walk would end for.
    for (int pair = 0; pair < 5000; ++pair) {
        const std::uint64_t common = 1 + generator() % 100000;
        const Words words = {common * (1 + generator() % 100000000000000U),
                             common * (1 + generator() % 100000000000000U)};
        const std::uint64_t divisor = std::gcd(words[0], words[1]);
        ASSERT_EQ(static_cast<std::uint64_t>(gcd(toValues(words)).re), divisor);
        ASSERT_EQ(factorOf(words), divisor) << words[0] << ' ' << words[1];
        ASSERT_EQ(multipleOf(words), words[0] / divisor * words[1]) << words[0] << ' ' << words[1];
    }
}

TEST(Divisors, PrimesOfAllSizesAreFoundAndComposedNumbersTakenApart) {
    for (std::uint64_t n = 0; n < 20000; ++n) {
        ASSERT_EQ(isPrime(n), isPrimeByTrial(n)) << n;
    }
    for (std::uint64_t n = 2; n < 70000; ++n) {
        const std::uint64_t factor = smallestPrimeFactor(n);
        ASSERT_EQ(n % factor, 0U) << n;
        ASSERT_EQ(factor == n, isPrimeByTrial(n)) << n;
    }
    EXPECT_EQ(smallestPrimeFactor(largestPrimeWord), largestPrimeWord);
    EXPECT_EQ(smallestPrimeFactor(largePrimes[0] * largePrimes[1]), largePrimes[1]);
    EXPECT_EQ(smallestPrimeFactor(largePrimes[1] * largePrimes[1]), largePrimes[1]);
    constexpr std::uint64_t largestCubed = 2642239;  // of the primes whose cube is a word
    EXPECT_EQ(smallestPrimeFactor(largestCubed * largestCubed * largestCubed), largestCubed);
    // Strong pseudoprimes to the first four primes, and to the first eleven.
    EXPECT_EQ(smallestPrimeFactor(3215031751U), 151U);
    EXPECT_EQ(smallestPrimeFactor(3825123056546413051U), 149491U);
    std::mt19937_64 generator(5);
    for (int sample = 0; sample < 300; ++sample) {
        const std::uint64_t p = nextPrime(generator() % 65536);
        const std::uint64_t q = nextPrime(generator() % 4294900000U);
        ASSERT_EQ(smallestPrimeFactor(p * q), std::min(p, q)) << p << " * " << q;
        const std::uint64_t n = generator() % largestBeforeNext;
        const std::uint64_t next = nextPrime(n);
        ASSERT_EQ(nextPrime(previousPrime(next)), next) << n;
        for (std::uint64_t number = n + 1; number <= next; ++number) {
            ASSERT_EQ(isPrime(number), number == next) << number;
        }
    }
}

TEST(Divisors, MultiplesOfLongListsAgreeWithThoseByHand) {
    std::mt19937_64 generator(2);
    for (const int bits : {5, 9, 16, 21, 32, 49}) {
        // Powers of few primes, smooth numbers, squares and cubes, products of two, and large primes times small ones.
        Words primes(static_cast<std::size_t>(bits < 9 ? 8 : 400), 3);
        for (std::uint64_t& prime : primes) {
            const int length = generator() % 2 == 0 ? bits : 3 + static_cast<int>(generator() % (bits - 2));
            prime = nextPrime(generator() >> (64 - length));
        }
        Words words(500, 1);
        for (std::uint64_t& word : words) {
            for (std::uint64_t factors = 1 + generator() % 12; factors != 0; --factors) {
                const std::uint64_t prime = primes[static_cast<std::size_t>(generator() % primes.size())];
                word *= word <= UINT64_MAX / prime ? prime : 1;
            }
        }
        ASSERT_EQ(multipleOf(words), multipleByHand(words)) << "primes of " << bits << " bits";
    }
}

/// Seconds that a call takes, of the processor's time where the system counts it.
template <typename Call>
double secondsOf(Call call) {
    const std::clock_t start = std::clock();
    call();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(Divisors, NoArgumentTakesLong) {
    // Ten times what a call may take, so that a busy machine passes and a walk over the primes does not.
    constexpr double limit = 1;
    EXPECT_LT(secondsOf([] { EXPECT_EQ(multipleOf({largestPrimeWord, 2}), largestPrimeWord * 2); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(factorOf({largestPrimeWord, largestPrimeWord}), largestPrimeWord); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(factorOf({largePrimes[0] * largePrimes[1], 0}), largePrimes[1]); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(nextPrime(largestBeforeNext), largestTested); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_TRUE(isPrime(largestTested)); }), limit);
    // What takes longest of all that fits a line of 64,000 characters: primes just too large to share a word by twos.
    Words words(64000 / 11, nextPrime(std::uint64_t{1} << 32));
    std::uint64_t product = words.front();
    for (std::size_t index = 1; index < words.size(); ++index) {
        words[index] = nextPrime(words[index - 1]);
        product *= words[index];
    }
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(multipleOf(words), product); }), limit);
}

}  // namespace
}  // namespace calquo
