// What lines in a table cannot show: position words, lines of a hundred thousand characters and more, random bytes.
#include "engine/evaluator.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "format/value_writer.h"
#include "support/repeated.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// The result under the default format, or the message and its place.
std::string answer(std::string_view line, int nestingLimit = deepestNesting) {
    try {
        const Evaluation evaluation = evaluateLine(line, nestingLimit);
        return FormatValue(evaluation.value, defaultFormats[0], evaluation.outputBase);
    } catch (const Except& error) {
        return std::string(errorMessage(error.code)) + " at " + std::to_string(errorPosition());
    }
}

TEST(Evaluator, PositionsTellWhereTheLiteralStands) {
    struct Row {
        const char* line;
        Positions positions;
    };
    const Row rows[] = {
        {"12.5", {0, 4, -1, 4}},           {"2*3", {2, 3, -1, 3}},         {"2 ^ 10", {4, 6, -1, 6}},
        {"sqrt 81", {5, 7, -1, 7}},        {"-(5!)%", {2, 3, -1, 3}},      {"(1.5; -2)", {0, 4, 8, 9}},
        {"sin( 1 ; 2 )", {3, 6, 10, 12}},  {"(1+1; 2)", {-1, -1, -1, -1}}, {"bShift(256; 4)", {7, 10, -1, 10}},
        {"bAnd(12; 10)", {9, 11, -1, 11}}, {"0^5", {-1, -1, -1, -1}},      {"max(1; 2)", {-1, -1, -1, -1}},
        {"5 km -> m", {-1, -1, -1, -1}},   {"2 pi", {-1, -1, -1, -1}},
    };
    for (const Row& row : rows) {
        const Positions found = evaluateLine(row.line).value.positions;
        EXPECT_EQ(found, row.positions) << row.line << ": " << found.literalStart << ", " << found.realPartEnd << ", "
                                        << found.imaginaryPartEnd << ", " << found.literalEnd;
    }
}

TEST(Evaluator, ComputesInFullPrecisionWhateverTheProcessorIsSetTo) {
    const std::uint16_t doublesRoundedUp = 0x0A7F;
    std::uint16_t usual = 0;
    asm volatile("fnstcw %0" : "=m"(usual));
    asm volatile("fldcw %0" : : "m"(doublesRoundedUp));
    const Value third = evaluateLine("1/3").value;
    const Value sum = evaluateLine("1+2^-63").value;
    const std::string text = FormatValue(third, 0x1307C000, 10);
    std::uint16_t after = 0;
    asm volatile("fnstcw %0" : "=m"(after));
    asm volatile("fldcw %0" : : "m"(usual));
    EXPECT_EQ(third.re, Real(1) / 3);
    EXPECT_EQ(sum.re, 1 + 0x1p-63L);
    EXPECT_EQ(text, "3.333333333333333333423683514374e-1");
    EXPECT_EQ(after, doublesRoundedUp);
}

TEST(Evaluator, NestingIsBoundedWhateverItsShape) {
    for (const char* piece : {"(", "sin(", "2^", "sin ", "avg(", "2(", "-("}) {
        const std::string line = repeated(100000, piece) + "1";
        EXPECT_TRUE(answer(line).starts_with("limit exceeded at ")) << piece;
    }
    EXPECT_EQ(answer("((((1))))", 4), "1");
    EXPECT_EQ(answer("((((1))))", 3), "limit exceeded at 3");
    EXPECT_EQ(answer("2^2^2^2", 2), "limit exceeded at 5");
    EXPECT_EQ(answer("sqrt sqrt(16)", 1), "limit exceeded at 5");
}

TEST(Evaluator, ListsThatAreNoGroupsAreReadOnce) {
    // Each level would double the time if its list were read as arguments first and as a number again.
    EXPECT_EQ(answer(repeated(50, "real(") + "7" + repeated(50, ";2)")), "7");
    EXPECT_EQ(answer(repeated(50, "sin(") + "1" + repeated(50, ";2)")).substr(0, 26), "complex value not allowed ");
    EXPECT_EQ(answer(repeated(100, "(") + "7" + repeated(100, ";0)")), "7");
}

TEST(Evaluator, LongLinesGiveTheirAnswer) {
    struct Row {
        std::string line;
        const char* answer;
    };
    const std::size_t million = 1000000;
    const Row rows[] = {
        {repeated(million, "9"), "domain range at 1000000"},
        {"0." + repeated(million, "9"), "1"},
        {"0." + repeated(million, "0") + "1e1000001", "1"},
        {"35'0." + repeated(million, "H"), "35'0.HHHHI"},
        {"1e" + repeated(million, "9"), "domain range at 1000002"},
        {"0e" + repeated(million, "9"), "0"},
        {"111" + repeated(million / 4, ",000"), "domain range at 1000003"},
        {repeated(million, " ") + "5" + repeated(million, " "), "5"},
        {repeated(million, "a"), "too long at 80"},
        {"3" + repeated(million, "a"), "invalid digit, not within the numeric base at 2"},
        {"1" + repeated(100000, "+1"), "100,001"},
        {repeated(100000, "-") + "1", "1"},
        {"sum(0" + repeated(100000, ";1") + ")", "100,000"},
        {"2" + repeated(100000, "(1)"), "2"},
        {"1 m" + repeated(100000, " -> m"), "1"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(answer(row.line.starts_with("35'") ? row.line + " '35" : row.line), row.answer)
            << row.line.substr(0, 20);
    }
}

TEST(Evaluator, RandomBytesGiveAnAnswerOrAnErrorInTheLine) {
    std::mt19937 random(7);
    const std::string_view pieces[] = {"(", ")", ";", "1",  "0.5", "e9",  "2'1",  "'16 ",  "^",      "**",   "->",
                                       "!", "%", "-", " ",  "km",  "sin", "sum(", "rnd",   "inf",    "NaN",  "=",
                                       "@", ",", ".", "\t", "i",   "C",   "fv(",  "root(", "1 year", "\xC3", "$"};
    for (int i = 0; i < 20000; ++i) {
        std::string line;
        const auto length = random() % 24;
        for (unsigned k = 0; k < length; ++k) {
            if (i % 2 == 0) {
                line += static_cast<char>(random());
            } else {
                line += pieces[random() % std::size(pieces)];
            }
        }
        try {
            const Evaluation evaluation = evaluateLine(line);
            EXPECT_FALSE(FormatValue(evaluation.value, defaultFormats[i % 7], evaluation.outputBase).empty());
        } catch (const Except& error) {
            EXPECT_GE(errorPosition(), 0) << line;
            EXPECT_LE(errorPosition(), static_cast<std::int32_t>(line.size())) << line;
            EXPECT_GE(static_cast<int>(error.code), 1) << line;
        }
    }
}

}  // namespace
}  // namespace calquo
