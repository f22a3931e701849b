// Drawn symbols: the limit of their points, and how they look at every size of a button.
#include "widgets/shape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "widgets/shape_coverage.h"

namespace calquo {
namespace {

constexpr int smallest = 6;  // pixels of a symbol on a button of 12
constexpr int largest = 24;  // on one of 40

std::uint8_t at(const Coverage& coverage, int column, int row) {
    const std::ptrdiff_t width = coverage.size.width;
    return coverage.alpha.begin()[row * width + column];
}

Coverage mirrored(Coverage coverage) {
    const std::ptrdiff_t width = coverage.size.width;
    for (auto row = coverage.alpha.begin(); row != coverage.alpha.end(); row += width) {
        std::reverse(row, row + width);
    }
    return coverage;
}

TEST(Shape, EverySymbolIsDrawnInItsSizeWithSharpEdgesAlongTheAxes) {
    using enum Symbol;
    const std::set<Symbol> straight = {Space, MainMenu, Buttons, Minimize, Maximize, Restore};
    for (int number = 1; number <= static_cast<int>(Close); ++number) {
        const auto symbol = static_cast<Symbol>(number);
        const Shape& shape = shapeOf(symbol);
        for (int pixels = smallest; pixels <= largest; ++pixels) {
            SCOPED_TRACE(testing::Message() << "symbol " << number << " in " << pixels);
            const Coverage coverage = coverageOf(shape, pixels);
            const double scale = static_cast<double>(pixels) / shapeSide;
            // Sharp edges cost up to half a pixel each.
            EXPECT_NEAR(coverage.size.width, shape.extent().x * scale, 4);
            EXPECT_NEAR(coverage.size.height, shape.extent().y * scale, 4);
            const auto dark = std::ranges::count_if(coverage.alpha, [](int alpha) { return alpha >= 160; });
            EXPECT_GE(dark, pixels * 3 / 4) << "washed out";
            EXPECT_LT(dark, std::ssize(coverage.alpha) * (symbol == Minimize ? 2 : 1)) << "a mere block";
            const auto half = std::ranges::count_if(coverage.alpha, [](int alpha) { return alpha > 0 && alpha < 255; });
            EXPECT_TRUE(half == 0 || !straight.contains(symbol));
        }
    }
    EXPECT_TRUE(coverageOf(shapeOf(None), largest).alpha.empty());
}

TEST(Shape, OppositeSymbolsMirrorEachOther) {
    const std::pair<Symbol, Symbol> pairs[] = {{Symbol::EraseBack, Symbol::EraseNext},
                                               {Symbol::Undo, Symbol::Redo},
                                               {Symbol::Close, Symbol::Close},
                                               {Symbol::Buttons, Symbol::Buttons}};
    for (const auto& [left, right] : pairs) {
        // In sizes where the extent comes out in whole pixels.
        for (const int pixels : {16, 32, 64}) {
            SCOPED_TRACE(testing::Message() << "symbol " << static_cast<int>(left) << " in " << pixels);
            EXPECT_EQ(mirrored(coverageOf(shapeOf(left), pixels)).alpha, coverageOf(shapeOf(right), pixels).alpha);
        }
    }
}

TEST(Shape, PartsAreFilledByTheEvenOddRule) {
    const Coverage frame = coverageOf(shapeOf(Symbol::Maximize), 64);
    EXPECT_EQ(at(frame, 28, 30), 0);
    EXPECT_EQ(at(frame, 4, 30), 255);
    const Coverage triangle = coverageOf(Shape{{0, 0}, {64, 0}, {0, 64}}, 8);
    EXPECT_EQ(at(triangle, 0, 0), 255);
    EXPECT_EQ(at(triangle, 7, 7), 0);
    EXPECT_NEAR(at(triangle, 3, 4), 127, 1) << "half of the pixel on the slope";
}

}  // namespace
}  // namespace calquo
