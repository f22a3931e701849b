// What memory the answer to a line takes, and what happens when there is none left.
#include <gtest/gtest.h>

#include "support/allocations.h"
#include "support/repeated.h"
#include "workarea/record.h"

namespace calquo {
namespace {

TEST(Answer, OrdinaryLinesAllocateNothing) {
    Answer answer;
    answer.text.reserve(100);
    for (const char* line : {"(1.5+2.25)*(3-0.5)", "2.71828182845904523536028747135266249775724709",
                             "16'DEAD.BEEF-8'777", "12345+1 '16", "cbrt(10)", "1.7^2.3", "ln(10)/ln(2)", "sin(30 deg)",
                             "aSin(0.5) -> deg", "exp(0.5; 2)", "sd(2; 4; 4; 5; 7; 2; 4; 4; 5; 7; 2; 4; 4; 5; 7; 9)",
                             "gcd(1071; 462)", "98.6 F -> C", "fv(1000; 10 year; 5%; year)", "prime(1000003)"}) {
        const int before = allocationsMade();
        evaluateInto(answer, line, defaultFormats[0]);
        EXPECT_EQ(allocationsMade(), before) << line;
        EXPECT_FALSE(answer.failed) << line;
    }
    const int before = allocationsMade();
    evaluateInto(answer, "sum(1;1;1;1;1;1;1;1;1;1;1;1;1;1;1;1;1)", defaultFormats[0]);
    EXPECT_GT(allocationsMade(), before) << "more arguments than have their place on the stack";
}

TEST(Answer, LongListsTakeAtMost64BytesAnItemAndAnErrorWhenThereAreNone) {
    constexpr std::size_t count = 20000;
    const std::string items = repeated(count - 1, "1;") + "1)";
    Answer answer;
    answer.text.reserve(100);
    for (const char* name : {"sum", "median", "sd", "avgG", "max", "gcd", "gcf", "lcm", "(sum"}) {
        const std::string line = std::string(name) + "(" + items + (name[0] == '(' ? ")" : "");
        const MemoryLimit enough(64 * count);
        evaluateInto(answer, line, defaultFormats[0]);
        EXPECT_FALSE(answer.failed) << name;
    }
    const std::size_t place = std::string("median(").size() + 16 * 2 + 1;  // after those that stand on the stack
    const std::string line = "median(" + items;
    for (const std::size_t bytes : {std::size_t{0}, (sizeof(Value) + 4) * count}) {
        {
            const MemoryLimit few(bytes);
            evaluateInto(answer, line, defaultFormats[0]);
        }
        EXPECT_TRUE(answer.failed);
        EXPECT_EQ(answer.error, ErrorCode::LimitExceeded);
        EXPECT_EQ(answer.position, bytes == 0 ? place : std::string("median").size());
    }
    evaluateInto(answer, line, defaultFormats[0]);
    EXPECT_EQ(answer.text, "1");
}

}  // namespace
}  // namespace calquo
