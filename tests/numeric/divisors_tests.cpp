// Primes and divisors: the fast methods against plain walks over small numbers, exact identities over large ones, and
// time bounds for the arguments on which a walk would never end.
#include "numeric/divisors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "numeric/montgomery.h"
#include "numeric/primes.h"
#include "values/errors.h"

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

std::string show(const Words& words) {
    std::string text;
    for (const std::uint64_t word : words) {
        text += std::to_string(word) + ' ';
    }
    return text;
}

bool isPrimeByTrial(std::uint64_t n) {
    if (n < 2) {
        return false;
    }
    for (std::uint64_t divisor = 2; divisor * divisor <= n; ++divisor) {
        if (n % divisor == 0) {
            return false;
        }
    }
    return true;
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

/// The search that lcm abridges: strip one prime after another from all items, until only 0 and 1 are left.
std::uint64_t walkedMultiple(Words items) {
    if (items.empty()) {
        return 0;
    }
    std::uint64_t result = 1;
    std::uint64_t prime = 2;
    while (std::ranges::any_of(items, [](std::uint64_t item) { return item >= 2; })) {
        bool divided = false;
        for (std::uint64_t& item : items) {
            if (item >= 2 && item % prime == 0) {
                item /= prime;
                divided = true;
            }
        }
        if (divided) {
            result *= prime;
        } else {
            prime = nextByTrial(prime);
        }
    }
    return result;
}

std::uint64_t factorOf(const Words& words) { return static_cast<std::uint64_t>(gcf(toValues(words)).re); }
std::uint64_t multipleOf(const Words& words) { return static_cast<std::uint64_t>(lcm(toValues(words)).re); }

void expectAsWalked(const Words& words) {
    ASSERT_EQ(factorOf(words), walkedFactor(words)) << "gcf of " << show(words);
    ASSERT_EQ(multipleOf(words), walkedMultiple(words)) << "lcm of " << show(words);
}

TEST(Divisors, FewSmallItemsInEveryOrderAgreeWithTheWalk) {
    constexpr std::uint64_t pairLimit = 130;
    for (std::uint64_t a = 0; a < pairLimit; ++a) {
        expectAsWalked({a});
        for (std::uint64_t b = 0; b < pairLimit; ++b) {
            expectAsWalked({a, b});
        }
    }
    constexpr std::uint64_t tripleLimit = 31;
    for (std::uint64_t a = 0; a < tripleLimit; ++a) {
        for (std::uint64_t b = 0; b < tripleLimit; ++b) {
            for (std::uint64_t c = 0; c < tripleLimit; ++c) {
                expectAsWalked({a, b, c});
            }
        }
    }
}

TEST(Divisors, LongerListsAgreeWithTheWalk) {
    std::mt19937_64 generator(20240607);
    for (int list = 0; list < 3000; ++list) {
        const std::uint64_t common = 1 + generator() % 60;
        Words words(static_cast<std::size_t>(1 + generator() % 7));
        // Now and then a zero, whose place decides what gcf answers.
        for (std::uint64_t& word : words) {
            word = generator() % 6 == 0 ? 0 : common * (1 + generator() % 500);
        }
        expectAsWalked(words);
    }
}

TEST(Divisors, MultiplesBeyondAWordWrapAsTheWalkDoes) {
    Words words(200);
    std::iota(words.begin(), words.end(), 1);
    expectAsWalked(words);
    std::ranges::reverse(words);
    expectAsWalked(words);
    std::mt19937_64 generator(7);
    for (int list = 0; list < 200; ++list) {
        Words sample(static_cast<std::size_t>(2 + generator() % 20));
        for (std::uint64_t& word : sample) {
            word = generator() % 5000;
        }
        expectAsWalked(sample);
    }
}

TEST(Divisors, ProductOfDivisorAndMultipleIsTheProductOfBoth) {
    std::mt19937_64 generator(99);
    for (int pair = 0; pair < 5000; ++pair) {
        const std::uint64_t common = 1 + generator() % 100000;
        const std::uint64_t a = common * (1 + generator() % 100000000000000U);
        const std::uint64_t b = common * (1 + generator() % 100000000000000U);
        const std::vector<Value> values = toValues({a, b});
        const auto divisor = static_cast<std::uint64_t>(gcd(values).re);
        ASSERT_EQ(divisor, std::gcd(a, b));
        ASSERT_EQ(factorOf({a, b}), divisor) << a << ' ' << b;
        ASSERT_EQ(divisor * multipleOf({a, b}), a * b) << a << ' ' << b;
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
    }
}

TEST(Divisors, NeighboursOfPrimesLeadBackToThem) {
    std::mt19937_64 generator(31);
    for (int sample = 0; sample < 500; ++sample) {
        const std::uint64_t n = generator() % largestBeforeNext;
        const std::uint64_t p = nextPrime(n);
        ASSERT_TRUE(p > n && isPrime(p)) << n;
        ASSERT_EQ(nextPrime(previousPrime(p)), p) << n;
        for (std::uint64_t between = n + 1; between < p; ++between) {
            ASSERT_FALSE(isPrime(between)) << between;
        }
    }
}

TEST(Divisors, MontgomeryAgreesWithShiftAndAdd) {
    std::mt19937_64 generator(13);
    const auto product = [](std::uint64_t a, std::uint64_t b, std::uint64_t modulus) {
        std::uint64_t sum = 0;
        for (int bit = 63; bit >= 0; --bit) {
            sum = sum >= modulus - sum ? sum - (modulus - sum) : sum + sum;
            if ((b >> bit & 1) != 0) {
                sum = sum >= modulus - a ? sum - (modulus - a) : sum + a;
            }
        }
        return sum;
    };
    for (int sample = 0; sample < 20000; ++sample) {
        const std::uint64_t modulus = (sample % 2 == 0 ? ~generator() % 1000 : generator()) | 1;
        if (modulus == 1) {
            continue;
        }
        const std::uint64_t a = generator() % modulus;
        const std::uint64_t b = generator() % modulus;
        const Montgomery field(modulus);
        ASSERT_EQ(field.multiply(field.residue(a), b), product(a, b, modulus)) << a << " * " << b << " mod " << modulus;
    }
}

/// Seconds that a call takes.
template <typename Call>
double secondsOf(Call call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(Divisors, NoArgumentTakesLong) {
    // Ten times what a call may take, so that a busy machine passes and a walk over the primes does not.
    constexpr double limit = 1;
    EXPECT_LT(secondsOf([] { EXPECT_EQ(multipleOf({largestPrimeWord, 2}), largestPrimeWord * 2); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(factorOf({largestPrimeWord, largestPrimeWord}), largestPrimeWord); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(factorOf({largePrimes[0] * largePrimes[1], 0}), largePrimes[1]); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_EQ(nextPrime(largestBeforeNext), largestTested); }), limit);
    EXPECT_LT(secondsOf([] { EXPECT_TRUE(isPrime(largestTested)); }), limit);
    Words words(10000);
    std::iota(words.begin(), words.end(), 1);
    EXPECT_LT(secondsOf([&] { EXPECT_GT(multipleOf(words), 0U); }), limit);
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(factorOf(words), 1U); }), limit);
}

}  // namespace
}  // namespace calquo
