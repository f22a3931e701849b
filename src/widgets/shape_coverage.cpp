// The even-odd filling of polygons, with sharp edges along the axes and smooth ones elsewhere.
#include "widgets/shape_coverage.h"

#include <algorithm>
#include <cmath>

namespace calquo {
namespace {

struct ScreenPoint {
    double x = 0;
    double y = 0;
};

/// Leads coordinates of one axis to the screen: linear between the edges that have to be sharp.
class AxisScale {
public:
    AxisScale(std::vector<int> edges, double pixelsPerUnit) : pixelsPerUnit_(pixelsPerUnit) {
        std::sort(edges.begin(), edges.end());
        edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
        for (const int edge : edges) {
            const double pixels =
                edges_.empty()
                    ? std::round(edge * pixelsPerUnit)
                    : edges_.back().pixels + std::max(1.0, std::round((edge - edges_.back().units) * pixelsPerUnit));
            edges_.push_back({edge, pixels});
        }
    }

    double operator()(int units) const {
        const auto after =
            std::find_if(edges_.begin(), edges_.end(), [&](const Edge& edge) { return edge.units >= units; });
        if (after == edges_.end()) {
            return edges_.empty() ? units * pixelsPerUnit_ : beside(edges_.back(), units);
        }
        if (after == edges_.begin()) {
            return beside(*after, units);
        }
        const Edge& before = *(after - 1);
        return before.pixels + (after->pixels - before.pixels) * (units - before.units) / (after->units - before.units);
    }

private:
    struct Edge {
        int units;
        double pixels;
    };

    double beside(const Edge& edge, int units) const { return edge.pixels + (units - edge.units) * pixelsPerUnit_; }

    double pixelsPerUnit_;
    std::vector<Edge> edges_;
};

/// The corners on the screen, with the leftmost and the topmost in the first column and row of pixels.
std::vector<ScreenPoint> cornersOf(const Shape& shape, int pixels) {
    const auto points = shape.points();
    std::vector<int> uprightEdges;
    std::vector<int> levelEdges;
    for (std::size_t index = 0; index < points.size(); ++index) {
        const ShapePoint from = points[index];
        const ShapePoint to = points[(index + 1) % points.size()];
        if (from.x == to.x && from.y != to.y) {
            uprightEdges.push_back(from.x);
        }
        if (from.y == to.y && from.x != to.x) {
            levelEdges.push_back(from.y);
        }
    }
    const double pixelsPerUnit = static_cast<double>(pixels) / shapeSide;
    const AxisScale across(uprightEdges, pixelsPerUnit);
    const AxisScale down(levelEdges, pixelsPerUnit);
    std::vector<ScreenPoint> corners;
    for (const ShapePoint point : points) {
        corners.push_back({across(point.x), down(point.y)});
    }
    const auto byX = [](ScreenPoint first, ScreenPoint second) { return first.x < second.x; };
    const auto byY = [](ScreenPoint first, ScreenPoint second) { return first.y < second.y; };
    if (!corners.empty()) {
        const double left = std::floor(std::min_element(corners.begin(), corners.end(), byX)->x);
        const double top = std::floor(std::min_element(corners.begin(), corners.end(), byY)->y);
        for (ScreenPoint& corner : corners) {
            corner.x -= left;
            corner.y -= top;
        }
    }
    return corners;
}

/// Where the polygon's outline crosses a level line, from left to right.
std::vector<double> crossingsAt(const std::vector<ScreenPoint>& corners, double y) {
    std::vector<double> crossings;
    for (std::size_t index = 0; index < corners.size(); ++index) {
        const ScreenPoint from = corners[index];
        const ScreenPoint to = corners[(index + 1) % corners.size()];
        if ((from.y <= y) != (to.y <= y)) {
            crossings.push_back(from.x + (to.x - from.x) * (y - from.y) / (to.y - from.y));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

}  // namespace

Coverage coverageOf(const Shape& shape, int pixels) {
    constexpr int linesPerPixel = 4;
    const std::vector<ScreenPoint> corners = cornersOf(shape, pixels);
    ScreenPoint extent;
    for (const ScreenPoint corner : corners) {
        extent = {std::max(extent.x, corner.x), std::max(extent.y, corner.y)};
    }
    const Size size{static_cast<int>(std::ceil(extent.x)), static_cast<int>(std::ceil(extent.y))};
    Coverage coverage{size, {}};
    for (int row = 0; row < size.height; ++row) {
        std::vector<double> covered(static_cast<std::size_t>(size.width));
        for (int line = 0; line < linesPerPixel; ++line) {
            const std::vector<double> crossings = crossingsAt(corners, row + (line + 0.5) / linesPerPixel);
            for (std::size_t index = 0; index + 1 < crossings.size(); index += 2) {
                for (int column = 0; column < size.width; ++column) {
                    const double begin = std::max<double>(column, crossings[index]);
                    const double end = std::min<double>(column + 1, crossings[index + 1]);
                    covered[static_cast<std::size_t>(column)] += std::max(0.0, end - begin);
                }
            }
        }
        for (const double lines : covered) {
            coverage.alpha.push_back(
                static_cast<std::uint8_t>(std::lround(255 * std::min(1.0, lines / linesPerPixel))));
        }
    }
    return coverage;
}

}  // namespace calquo
