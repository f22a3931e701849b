// Written digits against pencil-and-paper ones.
#include "format/digits.h"

#include <gtest/gtest.h>

#include "format/fraction.h"
#include "support/big_number.h"
#include "support/random_reals.h"

namespace calquo {
namespace {

/// round(x * base^places) for places of 0 and more, halves up, by doubling or halving digit strings.
std::string referenceDigits(Real x, std::uint32_t base, int places) {
    const ExtendedBits bits = bitsOf(x);
    BigNumber number(bits.mantissa, base);
    for (int i = 0; i < places; ++i) {
        number.multiplyBy(base);
    }
    for (int i = 0; i < bits.exponent(); ++i) {
        number.multiplyBy(2);
    }
    std::uint32_t half = 0;
    for (int i = bits.exponent(); i < 0; ++i) {
        half = number.halve();
    }
    if (half != 0) {
        number.increment();
    }
    return number.text();
}

TEST(Digits, AreExactInEveryBase) {
    RandomReals random;
    DigitBuffer digits;
    for (int i = 0; i < 4000; ++i) {
        ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
        bits.signExponent = static_cast<std::uint16_t>(random.between(16383 - 200, 16383 + 200));
        // Many trailing zeros, so that halves occur.
        bits.mantissa &= ~std::uint64_t{0} << random.between(0, 63);
        const auto base = static_cast<std::uint32_t>(random.between(2, 36));
        const int places = random.between(0, 31);
        roundedDigits(realOf(bits), base, places, digits);
        ASSERT_EQ(digits.text(), referenceDigits(realOf(bits), base, places))
            << "base " << base << ", places " << places << ", seed " << RandomReals::seed;
    }
}

TEST(Fraction, ReachesToTheLargestDenominator) {
    const std::pair<Real, Fraction> rows[] = {{0x1p-62L, {{0, 1}, {0, std::uint64_t{1} << 62}}},
                                              {0x1p-70L, {{0, 1}, {std::uint64_t{1} << 6, 0}}},
                                              {0x1p-128L, {{0, 0}, {0, 1}}},
                                              {0x1.8p-128L, {{0, 1}, largestDenominator}}};
    for (const auto& [number, expected] : rows) {
        const Fraction found = closestFraction(number, largestDenominator);
        EXPECT_TRUE(found.numerator == expected.numerator && found.denominator == expected.denominator) << number;
    }
}

TEST(Fraction, IsNoFurtherThanAnyOther) {
    RandomReals random;
    for (int i = 0; i < 300; ++i) {
        const Real x = static_cast<Real>(random.word() >> 1) * 0x1p-63L;
        const auto limit = static_cast<std::uint64_t>(random.between(1, 300));
        const Fraction found = closestFraction(x, {0, limit});
        ASSERT_LE(found.denominator.low, limit);
        const auto distance = [&](std::uint64_t numerator, std::uint64_t denominator) {
            const Real difference = x - static_cast<Real>(numerator) / static_cast<Real>(denominator);
            return difference < 0 ? -difference : difference;
        };
        for (std::uint64_t denominator = 1; denominator <= limit; ++denominator) {
            const auto nearest = static_cast<std::uint64_t>(x * static_cast<Real>(denominator) + 0.5L);
            // The distances themselves are rounded.
            ASSERT_LE(distance(found.numerator.low, found.denominator.low), distance(nearest, denominator) + 0x1p-62L)
                << x << " within " << limit;
        }
    }
}

}  // namespace
}  // namespace calquo
