// The faces of buttons: where their layers lie, and that every colour can be read.
#include "widgets/button_face.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

constexpr Color panelColor{240, 240, 240};  // the system's usual background of controls

/// Colours all over the cube, among them those of every panel.
std::vector<Color> faceColors() {
    constexpr std::uint8_t parts[] = {0, 63, 127, 191, 255};
    std::vector<Color> colors{defaultFaceColor};
    for (const std::uint8_t red : parts) {
        for (const std::uint8_t green : parts) {
            for (const std::uint8_t blue : parts) {
                colors.push_back({red, green, blue});
            }
        }
    }
    return colors;
}

TEST(ButtonFace, EveryColorCanBeReadAndSeenToBePressed) {
    for (const Color color : faceColors()) {
        SCOPED_TRACE(testing::Message() << int{color.red} << ", " << int{color.green} << ", " << int{color.blue});
        const ButtonFace face = buttonFace({40, 20}, color, false, {});
        const Color first = face.layers[0].color;
        const Color second = face.layers[1].color;
        EXPECT_GE(contrast(face.textColor, color), 4.5);
        EXPECT_GE(contrast(face.textColor, first), 4.5);
        EXPECT_GE(contrast(first, color), 1.25);
        EXPECT_GE(contrast(second, panelColor), 2);
        EXPECT_EQ(buttonFace({40, 20}, color, true, {}).textColor, face.textColor) << "text flickers with each press";
    }
}

TEST(Color, ContrastIsThatOfTheGuidelines) {
    EXPECT_DOUBLE_EQ(contrast(black, white), 21);
    EXPECT_DOUBLE_EQ(contrast(white, white), 1);
    // Published examples.
    EXPECT_NEAR(contrast({118, 118, 118}, white), 4.54, 0.005);
    EXPECT_NEAR(contrast(white, {255, 0, 0}), 4.00, 0.005);
    EXPECT_NEAR(contrast({0, 0, 255}, white), 8.59, 0.005);
}

}  // namespace
}  // namespace calquo
