// What a button's face is painted of: rounded rectangles one above the other, in tones of its colour.
#pragma once

#include <vector>

#include "widgets/color.h"
#include "widgets/geometry.h"
#include "widgets/palette.h"

namespace calquo {

/// The colour of a button that has none of its own.
inline constexpr Color defaultFaceColor{226, 229, 233};

/// A filled rectangle without an outline, its corners quarters of a circle.
struct RoundedRectangle {
    Rectangle rectangle;
    int cornerDiameter = 0;
    Color color;

    friend bool operator==(const RoundedRectangle&, const RoundedRectangle&) = default;
};

/// How a button of one size and colour looks.
struct ButtonFace {
    std::vector<RoundedRectangle> layers;  ///< In the order of painting.
    Color textColor;
};

/// The face of a button of `size` pixels whose colour is `color`, where the palette lets that count.
ButtonFace buttonFace(Size size, Color color, bool pressed, const Palette& palette);

}  // namespace calquo
