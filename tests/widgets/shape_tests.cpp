// Drawn symbols: the limit of their points, and how they look at every size of a button.
#include "widgets/shape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "widgets/shape_coverage.h"

namespace calquo {
namespace {

constexpr int smallest = 6;  // pixels of a symbol on a button of 12
constexpr int largest = 24;  // on one of 40

std::vector<Symbol> drawnSymbols() {
    std::vector<Symbol> symbols;
    for (int number = 1; number <= static_cast<int>(Symbol::Close); ++number) {
        symbols.push_back(static_cast<Symbol>(number));
    }
    return symbols;
}

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

/// The lengths of the runs of covered and of free pixels, alternately, down the middle of a symbol.
std::vector<int> runsDown(const Coverage& coverage) {
    std::vector<int> runs;
    bool covered = false;
    for (int row = 0; row < coverage.size.height; ++row) {
        const bool now = at(coverage, coverage.size.width / 2, row) > 127;
        if (runs.empty() || now != covered) {
            runs.push_back(0);
        }
        ++runs.back();
        covered = now;
    }
    return runs;
}

TEST(Shape, TakesThirtyTwoPointsAndKnowsItsExtent) {
    std::vector<ShapePoint> points(32, ShapePoint{3, 200});
    points[17] = {255, 7};
    EXPECT_EQ(Shape(points).extent(), (ShapePoint{255, 200}));
    EXPECT_EQ(Shape(points).points().size(), 32u);

    points.resize(40);
    try {
        const Shape shape(points);
        FAIL() << "40 points were taken";
    } catch (const Shape::TooManyPointsException& failure) {
        EXPECT_EQ(failure.count, 40u);
    }
}

TEST(Shape, EverySymbolIsDrawnInItsSize) {
    for (const Symbol symbol : drawnSymbols()) {
        const Shape& shape = shapeOf(symbol);
        for (int pixels = smallest; pixels <= largest; ++pixels) {
            SCOPED_TRACE(testing::Message() << "symbol " << static_cast<int>(symbol) << " in " << pixels);
            const Coverage coverage = coverageOf(shape, pixels);
            const double scale = static_cast<double>(pixels) / shapeSide;
            // Sharp edges cost up to half a pixel each.
            EXPECT_NEAR(coverage.size.width, shape.extent().x * scale, 4);
            EXPECT_NEAR(coverage.size.height, shape.extent().y * scale, 4);
            const auto dark =
                std::count_if(coverage.alpha.begin(), coverage.alpha.end(), [](int alpha) { return alpha >= 160; });
            EXPECT_GE(dark, pixels * 3 / 4) << "washed out";
            EXPECT_LT(dark, std::ssize(coverage.alpha) * (symbol == Symbol::Minimize ? 2 : 1)) << "a mere block";
        }
    }
    EXPECT_TRUE(coverageOf(shapeOf(Symbol::None), largest).alpha.empty());
}

TEST(Shape, EdgesAlongTheAxesAreSharpAtEverySize) {
    for (const Symbol symbol :
         {Symbol::Space, Symbol::MainMenu, Symbol::Buttons, Symbol::Minimize, Symbol::Maximize, Symbol::Restore}) {
        for (int pixels = smallest; pixels <= largest; ++pixels) {
            SCOPED_TRACE(testing::Message() << "symbol " << static_cast<int>(symbol) << " in " << pixels);
            for (const int alpha : coverageOf(shapeOf(symbol), pixels).alpha) {
                EXPECT_TRUE(alpha == 0 || alpha == 255) << alpha;
            }
        }
    }
}

TEST(Shape, EqualDistancesStayEqual) {
    for (int pixels = smallest; pixels <= largest; ++pixels) {
        SCOPED_TRACE(pixels);
        const std::vector<int> bars = runsDown(coverageOf(shapeOf(Symbol::MainMenu), pixels));
        ASSERT_EQ(bars.size(), 5u);
        EXPECT_EQ(bars[0], bars[2]);
        EXPECT_EQ(bars[0], bars[4]);
        EXPECT_EQ(bars[1], bars[3]);
    }
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
