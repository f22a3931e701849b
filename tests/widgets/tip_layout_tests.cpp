// Tips laid out with characters that are ten pixels wide, and twenty where they are bold.
#include "widgets/tip_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace calquo {
namespace {

int measure(const TipCell& cell, TextSpan part) {
    const auto bold = std::min(part.end, cell.bold.end) - std::min(part.end, std::max(part.begin, cell.bold.begin));
    return static_cast<int>(10 * (part.end - part.begin + (cell.bold.begin < cell.bold.end ? bold : 0)));
}

std::wstring broken(const TipCell& cell, int width) {
    std::wstring text;
    for (const TextSpan line : brokenLines(cell, width, measure)) {
        text += (text.empty() ? L"" : L"|") + cell.text.substr(line.begin, line.end - line.begin);
    }
    return text;
}

TEST(TipLayout, BreaksCellsAfterBlanksAndInsideLongWords) {
    EXPECT_EQ(broken({L"one two three"}, 130), L"one two three");
    EXPECT_EQ(broken({L"one two three"}, 120), L"one two|three");
    EXPECT_EQ(broken({L"one  two three"}, 50), L"one|two|three");
    EXPECT_EQ(broken({L"101101"}, 40), L"1011|01");
    EXPECT_EQ(broken({L"a 101101"}, 30), L"a|101|101");
    EXPECT_EQ(broken({L"abc"}, 5), L"a|b|c");
    EXPECT_EQ(broken({L"one two", {0, 3}}, 90), L"one|two");
}

TEST(TipLayout, GivesColumnsWhatTheyNeedAndTheLastOneTheRest) {
    const std::vector<TipRow> rows = {{{L"ab"}, {L"1"}}, {{L"a"}, {L"one two three"}}, {{L"c"}}};
    const TipLayout wide = layOutTip(rows, {1000, 15, 5}, measure);
    EXPECT_EQ(wide.width, 20 + 5 + 130);
    EXPECT_EQ(wide.rows[1].cells[1].place, (Point{25, 15}));
    const TipLayout narrow = layOutTip(rows, {100, 15, 5}, measure);
    EXPECT_EQ(narrow.width, 100);
    EXPECT_EQ(narrow.rows[1].height, 30);
    EXPECT_EQ(narrow.rows[2].top, 45);
    EXPECT_EQ(layOutTip({{{L"a bc def"}, {L"b"}}}, {100, 15, 5}, measure).rows[0].cells[0].lines.size(), 3U);
}

TEST(TipLayout, PutsATipWhereItDoesNotCoverItsLine) {
    const Rectangle area{0, 0, 200, 100};
    EXPECT_EQ(placeBeside({50, 20, 0, 15}, {60, 40}, area), (Rectangle{50, 35, 60, 40}));
    EXPECT_EQ(placeBeside({50, 60, 0, 15}, {60, 40}, area), (Rectangle{50, 20, 60, 40}));
    EXPECT_EQ(placeBeside({180, 20, 0, 15}, {60, 40}, area), (Rectangle{140, 35, 60, 40}));
    EXPECT_EQ(placeBeside({180, 20, 0, 15}, {300, 40}, area), (Rectangle{0, 35, 300, 40}));
    EXPECT_EQ(placeBeside({0, 140, 0, 15}, {60, 40}, area), (Rectangle{0, 60, 60, 40}));  // scrolled out
    EXPECT_EQ(roomBeside({0, 30, 0, 15}, 40, area), 55);
    EXPECT_EQ(roomBeside({0, 60, 0, 15}, 40, area), 60);
}

}  // namespace
}  // namespace calquo
