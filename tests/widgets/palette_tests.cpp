// High contrast in schemes as people choose them: everything can be read, and results stand out.
#include "widgets/palette.h"

#include <gtest/gtest.h>

#include "widgets/button_face.h"

namespace calquo {
namespace {

constexpr Color yellow{255, 255, 0}, green{0, 255, 0}, blue{0, 0, 255}, cyan{26, 235, 255}, purple{128, 0, 128};
constexpr Color night{45, 50, 54}, sand{255, 250, 239}, dim{60, 60, 60};

struct Scheme {
    const char* name = "";
    SystemColors colors;
    Color result;
    InkAndGround title, hint;
};

constexpr Scheme schemes[] = {
    {"white on black",
     {black, white, cyan, black, yellow, black, white, purple, white, black, white, black, white},
     yellow,
     {white, purple},
     {white, black}},
    {"black on white",
     {white, black, purple, white, {0, 0, 159}, white, black, black, white, white, black, white, black},
     {0, 0, 159},
     {white, black},
     {black, white}},
    {"green on black; links and captions left over from another scheme",
     {black, green, blue, white, {0, 0, 200}, black, green, dim, black, blue, black, blue, black},
     green,
     {white, blue},
     {green, black}},
    {"pale on dark, buttons apart; tips left over",
     {night,
      white,
      {165, 144, 226},
      black,
      {112, 235, 222},
      {32, 37, 42},
      white,
      night,
      white,
      night,
      white,
      sand,
      white},
     {112, 235, 222},
     {white, night},
     {white, night}},
};

TEST(Palette, InHighContrastIsTheUsersAndCanBeRead) {
    for (const auto& [name, colors, result, title, hint] : schemes) {
        SCOPED_TRACE(name);
        const Palette palette = highContrastPalette(colors);
        EXPECT_EQ(palette.sheet, (InkAndGround{colors.windowText, colors.window}));
        EXPECT_EQ(palette.result, result);
        EXPECT_EQ(palette.activeCaption.title, title);
        EXPECT_EQ(palette.hint, hint);
        for (const auto& [ink, ground] :
             {palette.sheet, InkAndGround{palette.result, palette.sheet.ground}, palette.activeCaption.title,
              palette.inactiveCaption.title, palette.hint, palette.selectedRow,
              InkAndGround{palette.barThumb, palette.barGroove}, InkAndGround{palette.fault, colors.window},
              InkAndGround{palette.fault, colors.buttonFace}}) {
            EXPECT_GE(contrast(ink, ground), readableContrast);
        }
        for (const bool pressed : {false, true}) {
            const ButtonFace face = buttonFace({40, 20}, {127, 0, 0}, pressed, palette);
            const Color ground = face.layers.back().color;
            EXPECT_GE(contrast(face.textColor, ground), readableContrast);
            EXPECT_EQ(ground, pressed ? colors.highlight : colors.buttonFace);
            EXPECT_TRUE(pressed || contrast(face.layers[1].color, palette.panelGround) >= readableContrast) << "edge";
        }
    }
}

}  // namespace
}  // namespace calquo
