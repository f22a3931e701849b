// Drawn symbols: small polygons, and the table of those that stand on buttons in place of a label.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <initializer_list>
#include <span>

namespace calquo {

struct ShapePoint {
    std::uint8_t x = 0;
    std::uint8_t y = 0;

    friend bool operator==(const ShapePoint&, const ShapePoint&) = default;
};

/// A closed polygon, filled by the even-odd rule; parts of it may hang together by lines without a width.
class Shape {
public:
    static constexpr std::size_t maximumPoints = 32;

    class TooManyPointsException : public std::exception {
    public:
        explicit TooManyPointsException(std::size_t points) : count(points) {}
        const char* what() const noexcept override { return "a shape has too many points"; }

        std::size_t count;
    };

    /// Raises TooManyPointsException beyond 32 points.
    constexpr explicit Shape(std::span<const ShapePoint> points);
    constexpr Shape(std::initializer_list<ShapePoint> points)
        : Shape(std::span<const ShapePoint>(points.begin(), points.size())) {}

    constexpr std::span<const ShapePoint> points() const { return {points_.data(), count_}; }
    /// The largest x and the largest y of the points.
    constexpr ShapePoint extent() const { return extent_; }

private:
    std::array<ShapePoint, maximumPoints> points_{};
    std::size_t count_;
    ShapePoint extent_;
};

/// The drawn symbols.
enum class Symbol : std::uint8_t {
    None,
    EraseBack,
    EraseNext,
    Clear,
    Undo,
    Redo,
    Enter,
    Space,
    MainMenu,
    Buttons,
    Minimize,
    Maximize,
    Restore,
    Close,
};

/// The shape of a symbol; that of None has no points.
const Shape& shapeOf(Symbol symbol);

constexpr Shape::Shape(std::span<const ShapePoint> points) : count_(points.size()) {
    if (count_ > maximumPoints) {
        throw TooManyPointsException(count_);
    }
    for (std::size_t index = 0; index < count_; ++index) {
        const ShapePoint point = points[index];
        points_[index] = point;
        extent_.x = point.x > extent_.x ? point.x : extent_.x;
        extent_.y = point.y > extent_.y ? point.y : extent_.y;
    }
}

}  // namespace calquo
