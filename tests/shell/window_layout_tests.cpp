// The layout of the main window: its parts cover the client area, beside and below one another.
#include "shell/window_layout.h"

#include <gtest/gtest.h>

#include <limits>

namespace calquo {
namespace {

constexpr Size leftCaption{60, 20}, rightCaption{70, 20}, smallestWorkArea{100, 50};

WindowParts partsWith(std::vector<Size> panels, bool hidden = false) {
    return {leftCaption, rightCaption, std::move(panels), hidden, smallestWorkArea};
}

TEST(WindowLayout, CaptionPanelsStandInTheCornersWithTheTitleBetween) {
    const WindowLayout layout = layOutWindow({400, 300}, partsWith({}));
    EXPECT_EQ(layout.leftCaption, (Rectangle{0, 0, 60, 20}));
    EXPECT_EQ(layout.rightCaption, (Rectangle{330, 0, 70, 20}));
    EXPECT_EQ(layout.title, (Rectangle{60, 0, 270, 20}));
    EXPECT_EQ(layout.workArea, (Rectangle{0, 20, 400, 280}));
}

TEST(WindowLayout, PanelsFormAColumnAndTheWorkAreaTakesTheRest) {
    const WindowLayout layout = layOutWindow({400, 300}, partsWith({{120, 80}, {100, 40}, {140, 20}}));
    EXPECT_EQ(layout.panels, (std::vector<Rectangle>{{0, 20, 120, 80}, {0, 100, 100, 40}, {0, 140, 140, 20}}));
    EXPECT_EQ(layout.workArea, (Rectangle{140, 20, 260, 280}));
}

TEST(WindowLayout, HiddenPanelsTakeNoRoom) {
    const WindowParts parts = partsWith({{120, 80}, {100, 400}}, true);
    EXPECT_EQ(layOutWindow({400, 300}, parts).workArea, (Rectangle{0, 20, 400, 280}));
    EXPECT_EQ(smallestClient(parts), smallestClient(partsWith({})));
}

TEST(WindowLayout, TheSmallestClientHoldsStripPanelsAndWorkArea) {
    struct Row {
        std::vector<Size> panels;
        Size smallest;
    };
    const Row rows[] = {
        {{}, {130, 70}},
        {{{120, 30}}, {220, 70}},
        {{{120, 80}, {150, 60}}, {250, 160}},
        {{{10, 10}}, {130, 70}},
    };
    for (const Row& row : rows) {
        const WindowParts parts = partsWith(row.panels);
        const Size smallest = smallestClient(parts);
        EXPECT_EQ(smallest, row.smallest);
        const WindowLayout layout = layOutWindow(smallest, parts);
        EXPECT_GE(layout.workArea.width, smallestWorkArea.width);
        EXPECT_GE(layout.workArea.height, smallestWorkArea.height);
        EXPECT_GE(layout.title.width, 0);
    }
}

TEST(WindowLayout, NoClientAreaMakesANegativeSize) {
    const WindowLayout layout = layOutWindow({0, 0}, partsWith({{120, 80}}));
    EXPECT_EQ(layout.workArea.width, 0);
    EXPECT_EQ(layout.workArea.height, 0);
    EXPECT_EQ(layout.title.width, 0);
}

TEST(WindowPlace, OnlyAnUnreachableOneIsMoved) {
    constexpr Size smallest{200, 100};
    const std::vector<Rectangle> screens = {{0, 0, 1000, 800}, {1000, 0, 500, 400}};
    constexpr Rectangle middle{250, 200, 500, 400};
    constexpr int largest = std::numeric_limits<int>::max();
    struct Row {
        Rectangle wanted, place;
    };
    const Row rows[] = {
        {{10, 10, 300, 200}, {10, 10, 300, 200}},
        {{-299, 10, 300, 200}, {-299, 10, 300, 200}},  // a part is shown
        {{1200, 100, 300, 200}, {1200, 100, 300, 200}},
        {{-300, 10, 300, 200}, middle},
        {{-32000, -32000, 300, 200}, middle},
        {{1100, 400, 300, 200}, middle},  // below the second screen
        {{10, 10, 0, 0}, middle},         // the system's choice for a window without a size
        {{10, 10, 300, 99}, middle},
        {{largest, largest, largest, largest}, middle},
        {{10, 10, -300, -200}, middle},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(reachablePlace(row.wanted, smallest, screens), row.place)
            << row.wanted.left << "," << row.wanted.top << " " << row.wanted.width << "x" << row.wanted.height;
    }
}

}  // namespace
}  // namespace calquo
