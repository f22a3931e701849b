// The packed format word: fields that share bits, and values that do not fit.
#include "format/numeric_format.h"

#include <gtest/gtest.h>

#include "values/errors.h"

namespace calquo {
namespace {

TEST(NumericFormat, SettingAFieldTouchesItsBitsOnly) {
    struct Row {
        NumericFormat word;
        NumericFormat mask;
        std::uint32_t value;
        NumericFormat expected;
    };
    const Row rows[] = {
        {0x4400200C, field::truncation, 4, 0x4480200C},  // the Integer word keeps its bits 19 and 20
        {0x4418200C, field::truncation, 0, 0x4418200C},     {0x232A2044, field::digits, 15, 0x237A2044},
        {0x13222040, field::alwaysExponent, 1, 0x13222044}, {0x032A1044, field::significantDigits, 31, 0x032FD044},
        {0x032A1044, field::groupSize, 15, 0x0F2A1044},
    };
    for (const Row& row : rows) {
        NumericFormat word = row.word;
        setField(word, row.mask, row.value);
        EXPECT_EQ(word, row.expected);
        EXPECT_EQ(getField(word, row.mask), row.value);
    }
}

TEST(NumericFormat, AValueThatDoesNotFitIsRefused) {
    NumericFormat word = defaultFormats[0];
    try {
        setField(word, field::significantDigits, 32);
        FAIL() << "32 significant digits do not fit into 5 bits";
    } catch (const Except& error) {
        EXPECT_EQ(error.code, ErrorCode::InternalFault);
    }
    EXPECT_EQ(word, defaultFormats[0]);
}

}  // namespace
}  // namespace calquo
