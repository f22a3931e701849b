// The rectangle of the main window on one screen or several.
#include "shell/window_layout.h"

#include <gtest/gtest.h>

#include <limits>

namespace calquo {
namespace {

TEST(WindowRectangle, OnlyOneWhoseCaptionCannotBeReachedIsMoved) {
    // A frame of 4 pixels, and of the caption below it 60 by 10.
    WindowReach reach{{-4, -4, 8, 8}, 20, {60, 10}, {200, 100}};
    const std::vector<Rectangle> usableAreas = {{0, 0, 1000, 800}, {1000, 0, 500, 400}};
    constexpr Rectangle middle{250, 200, 500, 400};
    constexpr int largest = std::numeric_limits<int>::max();
    struct Row {
        Rectangle wanted, result;
    };
    const Row rows[] = {
        {{10, 10, 300, 200}, {10, 10, 300, 200}},
        {{1200, 100, 300, 200}, {1200, 100, 300, 200}},
        // Just enough of the caption, and a pixel less of it.
        {{-236, 10, 300, 200}, {-236, 10, 300, 200}},
        {{-237, 10, 300, 200}, {0, 10, 300, 200}},
        {{936, 700, 300, 200}, {936, 700, 300, 200}},
        {{937, 700, 300, 200}, {700, 600, 300, 200}},
        {{10, -14, 300, 200}, {10, -14, 300, 200}},
        {{10, -15, 300, 200}, {10, 0, 300, 200}},
        {{10, 786, 300, 200}, {10, 786, 300, 200}},
        {{10, 787, 300, 200}, {10, 600, 300, 200}},
        {{1100, 400, 300, 200}, {700, 400, 300, 200}},  // below the second screen
        // Maximized, on screens that are gone: at the right of both, and above the first.
        {{1496, -4, 1928, 1088}, {0, 0, 1000, 800}},
        {{-4, -1084, 1928, 1088}, {0, 0, 1000, 800}},
        {{-32000, -32000, 160, 28}, middle},  // minimized
        {{10, 10, 0, 0}, middle},             // the system's choice for a window without a size
        {{10, 10, 300, 99}, middle},
        {{largest, largest, largest, largest}, {0, 0, 1000, 800}},
        {{10, 10, -300, -200}, middle},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(reachableRectangle(row.wanted, reach, usableAreas), row.result)
            << row.wanted.left << "," << row.wanted.top << " " << row.wanted.width << "x" << row.wanted.height;
    }
    reach.mayBeSmall = true;
    EXPECT_EQ(reachableRectangle({10, 10, 100, 99}, reach, usableAreas), (Rectangle{10, 10, 100, 99}));
    EXPECT_EQ(reachableRectangle({10, 10, 67, 99}, reach, usableAreas), middle);
}

TEST(WindowLayout, PanelsThatDoNotFitStandInAColumnThatEndsWithTheWindow) {
    const WindowParts parts{{60, 20}, {60, 20}, {{120, 300}, {100, 400}}, false, {200, 100}};
    const WindowLayout layout = layOutWindow({500, 220}, parts);
    EXPECT_EQ(layout.column, (Rectangle{0, 20, 120, 200}));
    EXPECT_EQ(layout.panels, (std::vector<Rectangle>{{0, 0, 120, 300}, {0, 300, 100, 400}}));
    EXPECT_EQ(layout.workArea, (Rectangle{120, 20, 380, 200}));
}

TEST(WindowRectangle, MaximizedItsClientAreaFillsTheUsableArea) {
    EXPECT_EQ(maximizedRectangle({100, 40, 1000, 760}, {-4, -5, 8, 10}), (Rectangle{96, 35, 1008, 770}));
    EXPECT_EQ(maximizedRectangle({-1920, 0, 1920, 1040}, {-3, -3, 6, 6}), (Rectangle{-1923, -3, 1926, 1046}));
}

TEST(WindowRectangle, GrowsWhereThereIsRoom) {
    constexpr Rectangle most{-3, -3, 1006, 806};
    struct Row {
        Rectangle window;
        Size size;
        Point corner;
    };
    const Row rows[] = {
        {{100, 200, 300, 200}, {300, 603}, {100, 200}},  {{100, 200, 300, 200}, {300, 604}, {100, 199}},
        {{100, 200, 300, 200}, {300, 806}, {100, -3}},   {{100, 200, 300, 200}, {300, 900}, {100, -3}},
        {{800, 700, 300, 200}, {400, 200}, {603, 700}},  // only where it grows
        {{-50, -20, 300, 200}, {2000, 900}, {-50, -20}}, {{800, 700, 300, 200}, {100, 100}, {800, 700}},
    };
    for (const Row& row : rows) {
        const Rectangle place = resizedRectangle(row.window, row.size, most);
        EXPECT_EQ(place, (Rectangle{row.corner.left, row.corner.top, row.size.width, row.size.height}))
            << row.size.width << "x" << row.size.height << ": " << place.left << ", " << place.top;
    }
}

TEST(WindowGrowth, EndsWithWhatItWasForUnlessAPersonHasSizedOrMovedTheWindow) {
    constexpr Rectangle most{0, 0, 1000, 800};
    struct Row {
        Rectangle present;
        Size least;
        Rectangle wanted;
    };
    const Row rows[] = {
        {{10, 300, 300, 200}, {100, 100}, {10, 300, 300, 200}},
        {{10, 300, 300, 200}, {100, 400}, {10, 300, 300, 400}},  // a panel opens
        {{10, 300, 300, 400}, {350, 700}, {10, 100, 350, 700}},  // and another one
        {{10, 100, 350, 700}, {350, 600}, {10, 200, 350, 600}},
        {{10, 200, 350, 600}, {100, 100}, {10, 300, 300, 200}},  // the last one closes
        {{10, 300, 300, 200}, {100, 100}, {10, 300, 300, 200}},
        {{10, 300, 300, 200}, {100, 600}, {10, 200, 300, 600}},
        {{20, 250, 300, 600}, {100, 600}, {20, 250, 300, 600}},  // moved by a person
        {{20, 250, 300, 600}, {100, 100}, {20, 250, 300, 200}},
        {{10, 300, 300, 200}, {100, 400}, {10, 300, 300, 400}},
        {{10, 300, 500, 450}, {100, 400}, {10, 300, 500, 450}},  // sized by a person
        {{10, 300, 500, 450}, {100, 100}, {10, 300, 500, 450}},
        {{10, 300, 500, 450}, {600, 100}, {10, 300, 600, 450}},
        {{10, 300, 600, 450}, {100, 100}, {10, 300, 500, 450}},
        {{10, 300, 250, 450}, {300, 100}, {10, 300, 300, 450}},  // a person makes it narrower than it may be
        {{10, 300, 300, 450}, {100, 100}, {10, 300, 250, 450}},
    };
    WindowGrowth growth;
    for (const Row& row : rows) {
        EXPECT_EQ(growth.rectangleFor(row.present, row.least, most), row.wanted) << &row - rows;
    }
}

}  // namespace
}  // namespace calquo
