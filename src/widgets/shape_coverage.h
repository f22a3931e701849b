// Shapes as pixels: how much of each pixel a shape covers at a given size.
#pragma once

#include <cstdint>
#include <vector>

#include "widgets/geometry.h"
#include "widgets/shape.h"

namespace calquo {

/// The length of a shape's coordinates that stands for the side of the square it is drawn in.
inline constexpr int shapeSide = 64;

struct Coverage {
    Size size;
    std::vector<std::uint8_t> alpha;  ///< 0 (untouched) to 255 (covered), row by row.
};

/// A shape drawn so that `shapeSide` becomes `pixels`. Edges along the axes fall between pixels, so that they are
/// sharp, and distances that are equal in the shape are equal on the screen.
Coverage coverageOf(const Shape& shape, int pixels);

}  // namespace calquo
