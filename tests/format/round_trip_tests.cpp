// What a format writes without loss reads back as the same number, to the last bit, in every base.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "engine/characters.h"
#include "engine/evaluator.h"
#include "format/shortest_digits.h"
#include "format/value_writer.h"
#include "support/random_reals.h"

namespace calquo {
namespace {

// Most digits everywhere: 31 significant, 31 fractional or denominator digits. The exponent limit is 0, because after
// leading zeros 31 fractional digits would hold fewer significant ones.
constexpr NumericFormat widest = field::significantDigits | field::digits;

NumericFormat widestWord(FormatKind kind, NumericFormat flags = 0) {
    return static_cast<NumericFormat>(kind) << 28 | widest | flags;
}

/// The sign of a zero is not written: a part that is 0 reads back as 0 or, negated, as -0.
bool sameNumber(Real a, Real b) {
    if (a == 0 && b == 0) {
        return true;
    }
    const ExtendedBits left = bitsOf(a);
    const ExtendedBits right = bitsOf(b);
    return left.mantissa == right.mantissa && left.signExponent == right.signExponent;
}

/// With groups of the length whose turn it is, while the language allows that length as it does for a selected format.
void expectRoundTrip(const Value& value, NumericFormat word, std::uint32_t base) {
    static std::uint32_t turn = 0;
    const std::uint32_t length = shortestGroup + turn++ % (longestGroup - shortestGroup + 1);
    setField(word, field::groupSize, length);
    setGroupLengths(length, length);
    const std::string text = FormatValue(value, word, base);
    const Value back = evaluateLine(text).value;
    setGroupLengths(thousandsGroup, thousandsGroup);
    EXPECT_TRUE(sameNumber(back.re, value.re) && sameNumber(back.im, value.im))
        << text << " under word " << std::hex << word << ", seed " << std::dec << RandomReals::seed;
}

/// How many mantissa bits 31 digits of a base hold without loss; 0 when only whole numbers are exact.
int losslessBits(std::uint32_t base) {
    if (std::has_single_bit(base)) {
        // The leading digit may hold a single bit.
        return std::min(64, 30 * std::countr_zero(base) + 1);
    }
    return base >= 5 ? 64 : 0;
}

class RoundTrip : public testing::TestWithParam<std::uint32_t> {};

TEST_P(RoundTrip, Scientific) {
    const std::uint32_t base = GetParam();
    if (losslessBits(base) == 0) {
        GTEST_SKIP() << "31 digits do not hold a mantissa in base " << base;
    }
    RandomReals random;
    const NumericFormat words[] = {widestWord(FormatKind::Scientific),
                                   widestWord(FormatKind::Scientific, field::groupFraction | field::plusSign),
                                   widestWord(FormatKind::Automatic, field::groupWhole | field::groupFraction)};
    for (int i = 0; i < 3000; ++i) {
        const Real x = random.positive(losslessBits(base));
        expectRoundTrip(Value(i % 2 == 0 ? x : -x, i % 8 == 0 ? random.positive(losslessBits(base)) : 0), words[i % 3],
                        base);
    }
    for (const Real x : {std::numeric_limits<Real>::denorm_min(), std::numeric_limits<Real>::min(), Real(1)}) {
        expectRoundTrip(Value(x), words[0], base);
    }
    if (losslessBits(base) == 64) {
        expectRoundTrip(Value(largestFinite), words[0], base);
        expectRoundTrip(Value(std::nextafter(Real(1), Real(0)), std::nextafter(Real(1), Real(2))), words[0], base);
    }
}

TEST_P(RoundTrip, NoDigitTooManyInFull) {
    const std::uint32_t base = GetParam();
    RandomReals random;
    for (int i = 0; i < 500 && losslessBits(base) != 0; ++i) {
        const Real x = random.positive(std::max(losslessBits(base) - i % 60, 1));
        std::string text;
        appendValueInFull(Value(x), widestWord(FormatKind::Scientific), base, text);
        EXPECT_TRUE(sameNumber(evaluateLine(text).value.re, x)) << text;
        NumericFormat shorter = widestWord(FormatKind::Scientific);
        const int digits = digitsToReadBack(x, base);
        setField(shorter, field::significantDigits, static_cast<std::uint32_t>(std::max(digits - 1, 1)));
        const std::string shorterText = FormatValue(Value(x), shorter, base);
        EXPECT_EQ(sameNumber(evaluateLine(shorterText).value.re, x), digits == 1) << text << " or " << shorterText;
    }
}

TEST_P(RoundTrip, WholeNumbersOfAnySize) {
    RandomReals random;
    for (int i = 0; i < 60; ++i) {
        ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
        bits.signExponent = static_cast<std::uint16_t>(random.between(16383 + 63, i < 50 ? 16383 + 500 : 0x7FFE));
        expectRoundTrip(Value(realOf(bits)), widestWord(FormatKind::Integer, field::groupWhole), GetParam());
        expectRoundTrip(Value(-realOf(bits)), widestWord(FormatKind::Currency), GetParam());
    }
}

TEST_P(RoundTrip, FractionsOfPowersOfTwo) {
    RandomReals random;
    for (int i = 0; i < 500; ++i) {
        ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
        // From 1 to 2^63, so that the denominator stays below 2^63; below base 5 it has too many digits for the field.
        bits.signExponent = static_cast<std::uint16_t>(random.between(16383 + (GetParam() < 5 ? 40 : 1), 16383 + 70));
        expectRoundTrip(Value(realOf(bits)), widestWord(FormatKind::Rational, field::groupFraction), GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(Bases, RoundTrip, testing::Range(std::uint32_t{2}, std::uint32_t{37}));

}  // namespace
}  // namespace calquo
