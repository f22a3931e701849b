// All lines of a sheet evaluated anew: what changes, where the caret goes, and how the changes get into rich text.
#include "workarea/reevaluation.h"

#include <gtest/gtest.h>

#include "workarea/file_fault.h"
#include "workarea/result_edits.h"
#include "workarea/rich_text_filter.h"

namespace calquo {
namespace {

std::string applied(std::string text, const std::vector<ResultEdit>& edits) {
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        text.replace(edit->begin, edit->end - edit->begin, edit->result);
    }
    return text;
}

TEST(Reevaluation, ChangesResultsAlone) {
    struct Row {
        std::string before, after, hint;
    };
    const Row rows[] = {
        {"2+3 = 9\r\r9*1", "2+3 = 5\r\r9*1", "Evaluated 1 line: 1 result differs from what stood there."},
        {"2+3 = 5\r1/4=\t7  \r", "2+3 = 5\r1/4=\t0.25  \r",
         "Evaluated 2 lines: 1 result differs from what stood there."},
        {"rent = 800\n2+3 = 5", "rent = 800\n2+3 = 5",
         "Evaluated 2 lines: no result differs from what stood there, and 1 line has an error and stays as written."},
        {"2+ = Error (invalid format)\r2+2 = Error (unknown name)\r3-1 = (1; 2)\rx = 1",
         "2+ = Error (invalid format)\r2+2 = 4\r3-1 = 2\rx = 1",
         "Evaluated 4 lines: 2 results differ from what stood there, and 2 lines have an error and stay as written."},
        {"A = 12 m2, U = 0.24\r= 5\rx= \r2+3", "A = 12 m2, U = 0.24\r= 5\rx= \r2+3", "No line has a result."},
        {"", "", "No line has a result."},
    };
    for (const Row& row : rows) {
        const Reevaluation outcome = reevaluate(row.before, defaultFormats[0]);
        EXPECT_EQ(applied(row.before, outcome.edits), row.after);
        EXPECT_EQ(hintAbout(outcome), row.hint);
    }
}

TEST(Reevaluation, LeavesTheCaretInItsLine) {
    const std::vector<ResultEdit> edits = {{4, 6, "123"}, {10, 14, "5"}};
    struct Row {
        std::size_t before, after;
    };
    const Row rows[] = {{0, 0}, {4, 4}, {5, 5}, {6, 7}, {7, 8}, {10, 11}, {11, 12}, {13, 12}, {14, 12}, {15, 13}};
    for (const Row& row : rows) {
        EXPECT_EQ(positionAfter(edits, row.before), row.after) << row.before;
    }
}

TEST(ResultEdits, ReplaceCharactersOfRichText) {
    const auto clean = [](std::string_view text) { return cleanRichText(text, 1'000'000, LastLineEnd::Dropped); };
    const ResultLook look{"Mono", 24, 1, 2, 3, true};
    // Characters of every kind stand before the two results, the second of which has two looks.
    const std::string old = clean(
        "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Other;}}{\\colortbl;\\red9\\green9\\blue9;}"
        "\\f0\\fs20\\{\\u8364?\\'e4\\tab {\\i a} = 1{\\cf1 2}\\par b = {\\b 3}4\\par}");
    const std::vector<ResultEdit> edits = {{8, 10, "7"}, {15, 17, "{\xA0"}};
    const auto text = withResults(old, 17, edits, look);
    ASSERT_TRUE(text);
    EXPECT_EQ(clean(*text),
              clean("{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Other;}{\\f1\\fnil Mono;}}{\\colortbl;\\red9\\green9\\blue9;"
                    "\\red1\\green2\\blue3;}\\f0\\fs20\\{\\u8364?\\'e4\\tab {\\i a} = "
                    "{\\f1\\fs24\\b\\cf2 7}\\par b = {\\f1\\fs24\\b\\cf2 \\{\\u160?}\\par}"));
    EXPECT_FALSE(withResults(old, 16, edits, look));
    EXPECT_FALSE(withResults(old, 17, {{15, 18, "7"}}, look));
}

}  // namespace
}  // namespace calquo
