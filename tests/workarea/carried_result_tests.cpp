// Which typed text goes on from a carried result, and which begins anew.
#include "workarea/carried_result.h"

#include <gtest/gtest.h>

#include "engine/characters.h"

namespace calquo {
namespace {

TEST(CarriedResult, IsReplacedByOperandsAndContinuedByOperators) {
    for (const wchar_t* text : {L"7", L"0x1F", L".5", L"k", L"Z", L"(", L"16'FF", L"e3", L"mod(7; 2)", L"sqrt(", L"$5",
                                L"\u20AC5", L"\u00B5m", L"\u221A16", L"\u03C0", L"\uFF17", L"\u4E03", L"100\r200"}) {
        EXPECT_TRUE(beginsOperand(text)) << testing::PrintToString(std::wstring(text));
    }
    for (const wchar_t* text : {L"",
                                L"+",
                                L"-8",
                                L"->m",
                                L"*",
                                L"**2",
                                L"/",
                                L"^",
                                L"%",
                                L"!",
                                L";",
                                L")",
                                L" ",
                                L" 7",
                                L"\t7",
                                L"\r7",
                                L"'16",
                                L",",
                                L"@3",
                                L"=",
                                L"_",
                                L"\u00D7"
                                L"3",
                                L"\u00F7",
                                L"\u2212"
                                L"4",
                                L"\u00B2",
                                L"\u00B7",
                                L"\u00A0"
                                L"7",
                                L"\u2192 m",
                                L"\uFF0B"}) {
        EXPECT_FALSE(beginsOperand(text)) << testing::PrintToString(std::wstring(text));
    }
    setMarks(',', '.');
    EXPECT_TRUE(beginsOperand(L",5"));
    EXPECT_FALSE(beginsOperand(L"."));
    setMarks('.', ',');
}

}  // namespace
}  // namespace calquo
