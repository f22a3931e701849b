// Powers, roots and logarithms whose exact result is a number give that number.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "numeric/exponential.h"

namespace calquo {
namespace {

constexpr std::uint64_t bound = std::uint64_t{1} << 63;

/// Checks a^b, its root and its logarithm, all whole numbers.
void expectExact(std::uint64_t a, unsigned b, std::uint64_t power) {
    const auto base = static_cast<Real>(a);
    const auto exponent = static_cast<Real>(b);
    const auto wanted = static_cast<Real>(power);
    ASSERT_EQ(pow(Value(base), Value(exponent)).re, wanted) << a << "^" << b;
    ASSERT_EQ(root(Value(wanted), Value(exponent)).re, base) << "root of " << a << "^" << b;
    if (a > 1) {
        ASSERT_EQ(logB(Value(wanted), Value(base)).re, exponent) << "logarithm of " << a << "^" << b;
    }
}

TEST(Powers, OfWholeNumbersBelowTwoToThe63AreExact) {
    // Of the many squares and cubes those of every small base and a sweep over the rest.
    for (std::uint64_t a = 1; a < 65536; ++a) {
        std::uint64_t power = a;
        for (unsigned b = 2; power <= (bound - 1) / a && b <= 63; ++b) {
            power *= a;
            expectExact(a, b, power);
        }
    }
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        const std::uint64_t a = 1 + random() % 3037000499, c = 1 + a % 2097151;
        expectExact(a, 2, a * a);
        expectExact(a, 1, a);
        expectExact(c, 3, c * c * c);
    }
}

TEST(Powers, OfTwoAndTenReachOverTheWholeRange) {
    for (int exponent = -16000; exponent < 16384; exponent += 61) {
        const Real power = std::ldexp(Real(1), exponent);
        ASSERT_EQ(pow(Value(2), Value(exponent)).re, power);
        ASSERT_EQ(log2(Value(power)).re, exponent);
        for (int degree = -12; degree <= 12; ++degree) {
            if (degree != 0 && exponent % degree == 0) {
                ASSERT_EQ(root(Value(power), Value(degree)).re, std::ldexp(Real(1), exponent / degree)) << exponent;
            }
        }
    }
    Real power = 1;
    for (int exponent = 0; exponent <= 27; ++exponent, power *= 10) {
        ASSERT_EQ(pow(Value(10), Value(exponent)).re, power);
        ASSERT_EQ(log10(Value(power)).re, exponent);
    }
}

TEST(Logarithm, NextToOneKeepsItsPrecision) {
    // ln(1 + t) = t - t^2/2 + ...; for these t the next term is below the last bit.
    for (const Real t : {0x1p-63L, 0x1p-50L, 0x1.8p-40L, -0x1p-64L, -0x1p-45L}) {
        EXPECT_EQ(ln(Value(1 + t)).re, t - t * t / 2);
    }
}

}  // namespace
}  // namespace calquo
