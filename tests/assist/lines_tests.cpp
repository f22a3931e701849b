// Values of lines, the sum of selected lines, and names at the caret.
#include <gtest/gtest.h>

#include "assist/line_pieces.h"
#include "assist/line_value.h"
#include "assist/lines_sum.h"
#include "engine/keywords.h"

namespace calquo {
namespace {

TEST(LineValue, IsWhatStandsThereOrBehindIt) {
    struct Row {
        std::string line, shown, full;
    };
    const Row rows[] = {
        {"2+3 = 5", "5", "5"},
        {"1/3 = 0.33333", "0.33333", "0.33333333333333333334"},
        {"1e6/7 = 142,857.14", "142,857.14", "142857.14285714285714"},
        {"1/3 = 0.5", "0.5", "0.5"},  // not its result
        {"rent = 1,800.50", "1,800.50", "1800.50"},
        {"x = -2 3/4", "-2 3/4", "-2.75"},
        {"-2^2 = 4", "4", "4"},
        {"'16 255 = 16'FF", "16'FF", "16'FF"},
        {"sqrt(-4) = (0; 2)", "(0; 2)", "(0; 2)"},
        {"2+3", "5", "5"},
        {"1e-7", "0", "1e-7"},
        {"x = -inf", "-inf", "-inf"},
        {"2+", "", ""},
        {"2+ = Error (invalid format)", "", ""},
        {"A = 12 m2", "", ""},
        {"", "", ""},
    };
    for (const Row& row : rows) {
        const auto value = valueOf(row.line, defaultFormats[0]);
        EXPECT_EQ(value ? value->shown : "", row.shown) << row.line;
        EXPECT_EQ(value ? textInFull(*value) : "", row.full) << row.line;
    }
}

TEST(LinesSum, AddsNumbersAndResults) {
    struct Row {
        std::wstring_view lines;
        std::string expression, hint;
        std::size_t place;
    };
    const Row rows[] = {
        {L"12.50\r$ 7\r3*4 = 12", "sum(12.50; 7; 12)", "", 18},
        {L"\u20ac\u00a01,234.5 \r-\u00a320\r\u22125 \u20ac\r+ 6\r\r", "sum(1234.5; -20; -5; 6)", "", 24},
        {L"Total\r1\r2024-01-15\r(5.00)\r2+3\rNaN", "sum(1)", "5 lines have no number and are left out.", 33},
        {L"1/3 = 0.33333\rrent = 2 3/4\r16'FF", "sum(0.33333333333333333334; 2.75; 16'FF)", "", 32},
        {L"7*8 = 56\r\r56\r", "sum(56)", "", 10},
        {L"7*8 = 56\r56", "sum(56; 56)", "", 11},
        {L"sqrt(-4) = (0; 2)\r1\rx", "sum((0; 2); 1)", "1 line has no number and is left out.", 21},
        {L"one\r", "", "The selected lines have no number.", 3},
        {L"", "", "The selected lines have no number.", 0},
    };
    for (const Row& row : rows) {
        const LinesSum sum = sumOfLines(row.lines, defaultFormats[0]);
        EXPECT_EQ(sum.expression, row.expression);
        EXPECT_EQ(hintAbout(sum), row.hint) << row.expression;
        EXPECT_EQ(sum.place, row.place) << row.expression;
        EXPECT_EQ(sum.replacesCarried, sum.place == 10) << row.expression;
    }
}

TEST(NameAt, IsTheNameThatTouchesTheCaret) {
    struct Row {
        std::string_view line;
        std::size_t offset;
        std::string_view name;
    };
    const Row rows[] = {
        {"2+sqrt(3km)", 2, "sqrt"}, {"2+sqrt(3km)", 6, "sqrt"}, {"2+sqrt(3km)", 7, ""}, {"2+sqrt(3KM)", 8, "km"},
        {"16'AB m", 4, ""},         {"16'AB m", 7, "m"},        {"unknown", 3, ""},     {"", 0, ""}};
    for (const Row& row : rows) {
        EXPECT_EQ(nameOf(nameAt(row.line, row.offset)), row.name) << row.line;
    }
}

}  // namespace
}  // namespace calquo
