// Which words after an "=" are somebody's own; that all answers read as written is shown by the rows of tests/lines.
#include "workarea/written_answer.h"

#include <gtest/gtest.h>

#include "engine/characters.h"
#include "workarea/record.h"

namespace calquo {
namespace {

TEST(WrittenAnswer, IsToldFromWords) {
    for (const char* text :
         {"800", " 800\t", "-2 3/4", "(1; -2)", "+inf", "qNaN", "(NaN; -inf)", "16'FF@-A", "Error (unknown name)",
          "Error (should be at least 1 day, time unit may be missing) at 12"}) {
        EXPECT_TRUE(isWrittenAnswer(text)) << text;
    }
    for (const char* text : {"",
                             "  ",
                             "12 m2, U = 0.24",
                             "800 EUR",
                             "1/2/3",
                             "2 3",
                             "1 2/3 4",
                             "(1;2)",
                             "(1; 2",
                             "1 m",
                             "2+3",
                             "0x1F",
                             "12,50",
                             "1.2.3",
                             "- 5",
                             "--5",
                             "inf.",
                             "16'",
                             "Error",
                             "Error (unknown)",
                             "Error (parentheses) there",
                             "Error (parentheses",
                             "ERROR (parentheses)"}) {
        EXPECT_FALSE(isWrittenAnswer(text)) << text;
    }
    setMarks(',', '.');
    EXPECT_TRUE(isWrittenAnswer("1.234,5"));
    EXPECT_FALSE(isWrittenAnswer("0.25"));
    setMarks('.', ',');
}

struct NoteRow {
    const char* line;
    bool isNote;
};

TEST(Note, KeepsItsWords) {
    constexpr NoteRow rows[] = {
        {"A = 12 m2, U = 0.24", true},
        {" rent = 800 EUR a month", true},
        {"flat_2=two rooms", true},
        {"Gr\xF6\xDF"
         "e = 12 m2",
         true},
        // Nothing is lost, or only what the program writes again.
        {"rent", false},
        {"rent = ", false},
        {"rent = 800", false},
        {"rent = Error (unknown name)", false},
        {"rent 2 = two", false},
        {"2rent = two", false},
        {"sin = opposite / hypotenuse", false},
        {"pi = about 3", false},
    };
    for (const NoteRow& row : rows) {
        const LineEdit edit = editAfterEnter(row.line, defaultFormats[0]);
        EXPECT_EQ(edit.goesToNextLine, row.isNote) << row.line;
        EXPECT_EQ(edit.changes, !row.isNote) << row.line;
    }
}

}  // namespace
}  // namespace calquo
