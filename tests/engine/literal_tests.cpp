// Literals next to the half-way points between two numbers, in every base, against exact expansions.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/evaluator.h"
#include "support/big_number.h"
#include "support/random_reals.h"

namespace calquo {
namespace {

/// A whole number of digits times base^exponent.
struct Expansion {
    BigNumber digits;
    int exponent;
};

/// The exact expansion of the number half-way between x and the next larger one.
Expansion halfwayAbove(Real x, std::uint32_t base) {
    const ExtendedBits bits = bitsOf(x);
    Expansion result{BigNumber(bits.mantissa, base), 0};
    result.digits.multiplyBy(2);
    result.digits.increment();
    const int exponent = bits.exponent() - 1;
    for (int i = 0; i < exponent; ++i) {
        result.digits.multiplyBy(2);
    }
    // In an even base every halving adds one digit behind the mark.
    for (int i = exponent; i < 0; ++i) {
        result.digits.multiplyBy(base);
        result.digits.halve();
        --result.exponent;
    }
    return result;
}

/// The literal in the exponent form, its exponent in the literal's own base.
std::string literal(const Expansion& number, std::uint32_t base) {
    const auto magnitude = static_cast<std::uint64_t>(std::abs(number.exponent));
    return std::to_string(base) + "'" + number.digits.text() + "@" + (number.exponent < 0 ? "-" : "+") + "0" +
           BigNumber(magnitude, base).text();
}

TEST(Literal, IsRoundedToNearestNextToHalfwayPoints) {
    RandomReals random;
    for (int i = 0; i < 700; ++i) {
        const auto base = static_cast<std::uint32_t>(random.between(2, 36));
        ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
        // In an odd base only whole numbers have an end.
        bits.signExponent = static_cast<std::uint16_t>(base % 2 == 0 ? random.between(16383 - 150, 16383 + 200)
                                                                     : random.between(16448, 16600));
        const Real x = realOf(bits);
        const Real above = std::nextafter(x, largestFinite);
        Expansion number = halfwayAbove(x, base);
        const auto value = [&] { return evaluateLine(literal(number, base)).value.re; };
        EXPECT_EQ(value(), bits.mantissa % 2 == 0 ? x : above) << literal(number, base);
        // A difference far behind the last digit decides.
        for (int digit = 0; digit < 60; ++digit) {
            number.digits.multiplyBy(base);
            --number.exponent;
        }
        number.digits.increment();
        EXPECT_EQ(value(), above) << literal(number, base);
        number.digits.decrement();
        number.digits.decrement();
        EXPECT_EQ(value(), x) << literal(number, base);
    }
}

TEST(Literal, IsRoundedAtBothEndsOfTheRange) {
    const Real smallest = std::numeric_limits<Real>::denorm_min();
    struct Row {
        const char* text;
        Real value;
    };
    const Row rows[] = {
        {"2'1e-100000000111101", smallest},  // 2^-16445
        {"2'1e-100000000111110", 0},         // half of it: a tie, and 0 is even
        {"2'1.0000000000000000000000000000000000000000000000000000000000000001e-100000000111110", smallest},
        {"2'11e-100000000111110", 2 * smallest},  // one and a half: a tie, and 2 is even
        {"1e-5000", 0},
        {"3.6e-4951", smallest},
        {"1.18973149535723176502e+4932", largestFinite},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(evaluateLine(row.text).value.re, row.value) << row.text;
    }
}

}  // namespace
}  // namespace calquo
