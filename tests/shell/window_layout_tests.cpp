// The rectangle of the main window on one screen or several.
#include "shell/window_layout.h"

#include <gtest/gtest.h>

#include <limits>

namespace calquo {
namespace {

TEST(WindowRectangle, OnlyAnUnreachableOneIsMoved) {
    constexpr Size smallest{200, 100};
    const std::vector<Rectangle> usableAreas = {{0, 0, 1000, 800}, {1000, 0, 500, 400}};
    constexpr Rectangle middle{250, 200, 500, 400};
    constexpr int largest = std::numeric_limits<int>::max();
    struct Row {
        Rectangle wanted, result;
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
        EXPECT_EQ(reachableRectangle(row.wanted, smallest, usableAreas), row.result)
            << row.wanted.left << "," << row.wanted.top << " " << row.wanted.width << "x" << row.wanted.height;
    }
}

TEST(WindowRectangle, MaximizedFillsTheUsableAreaWithOnePixelOfItsFrame) {
    EXPECT_EQ(maximizedRectangle({100, 40, 1000, 760}, {-4, -5, 8, 10}), (Rectangle{97, 36, 1006, 768}));
}

}  // namespace
}  // namespace calquo
