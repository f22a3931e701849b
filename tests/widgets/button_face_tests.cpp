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

TEST(ButtonFace, RaisedFacesAreFiveRoundedRectangles) {
    constexpr Color color{10, 20, 30};
    struct Row {
        Size size;
        int cornerDiameter = 0;
        Rectangle places[5];
    };
    const Row rows[] = {
        {{12, 12}, 2, {{0, 0, 12, 12}, {0, 0, 11, 11}, {1, 1, 10, 10}, {1, 1, 11, 11}, {1, 1, 10, 10}}},
        {{30, 20}, 4, {{0, 0, 30, 20}, {0, 0, 28, 18}, {1, 1, 27, 17}, {2, 2, 28, 18}, {2, 2, 27, 17}}},
        {{60, 40}, 6, {{0, 0, 60, 40}, {0, 0, 57, 37}, {1, 1, 56, 36}, {3, 3, 57, 37}, {3, 3, 56, 36}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.size.height);
        const auto layers = buttonFace(row.size, color, false).layers;
        ASSERT_EQ(layers.size(), 5u);
        for (std::size_t index = 0; index < 5; ++index) {
            SCOPED_TRACE(index);
            EXPECT_EQ(layers[index].place, row.places[index]);
            EXPECT_EQ(layers[index].cornerDiameter, row.cornerDiameter);
        }
        EXPECT_EQ(layers[2].color, color);
        EXPECT_EQ(layers[4].color, color);
        EXPECT_EQ(layers[1].color, layers[3].color);
        const auto pressed = buttonFace(row.size, color, true).layers;
        ASSERT_EQ(pressed.size(), 1u);
        EXPECT_EQ(pressed[0], layers[0]);
    }
}

TEST(ButtonFace, EveryColorCanBeReadAndSeenToBePressed) {
    for (const Color color : faceColors()) {
        SCOPED_TRACE(testing::Message() << int{color.red} << ", " << int{color.green} << ", " << int{color.blue});
        const ButtonFace face = buttonFace({40, 20}, color, false);
        const Color first = face.layers[0].color;
        const Color second = face.layers[1].color;
        EXPECT_GE(contrast(face.textColor, color), 4.5);
        EXPECT_GE(contrast(face.textColor, first), 4.5);
        EXPECT_GE(contrast(first, color), 1.25);
        EXPECT_GE(contrast(second, panelColor), 2);
        EXPECT_EQ(buttonFace({40, 20}, color, true).textColor, face.textColor) << "text flickers with each press";
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

TEST(Color, MixingGoesFromOneColorToTheOther) {
    constexpr Color from{0, 100, 255};
    constexpr Color to{200, 100, 0};
    EXPECT_EQ(mixed(from, to, 0), from);
    EXPECT_EQ(mixed(from, to, 25), (Color{50, 100, 191}));
    EXPECT_EQ(mixed(from, to, 100), to);
}

}  // namespace
}  // namespace calquo
