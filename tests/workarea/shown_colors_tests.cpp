// Sheets in high contrast: what shows, and that files get their own colours back.
#include "workarea/shown_colors.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

/// A sheet with a normal text, a result, an own colour of its author's on a background, and a text of no colour.
const std::string sheet =
    "{\\rtf1\\ansi{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue139;\\red255\\green0\\blue0;"
    "\\red255\\green255\\blue0;}\n\\cf1 2+3 \\b\\cf2 = 5\\b0\\cf3\\highlight4  note\\cf0\\highlight0  x}";

std::string changed(const std::string& text, const ColorChange& colors) {
    return cleanRichText(text, 1'000'000, LastLineEnd::Kept, colors);
}

Palette schemeOf(Color ground, Color text, Color links) {
    SystemColors system{};
    system.window = ground;
    system.windowText = text;
    system.hotLight = links;
    return highContrastPalette(system);
}

TEST(ShownColors, AreTheFilesOwnUnlessContrastIsHigh) {
    ShownColors colors{Palette{}};
    EXPECT_FALSE(colors.areChanged() || colors.toScreen().ofCharacters || colors.toFile().ofCharacters);
    EXPECT_EQ(colors.normal(), black);
    EXPECT_EQ(colors.result(), (Color{0, 0, 139}));
}

TEST(ShownColors, ComeBackAsTheyWere) {
    const std::string saved = changed(sheet, {});
    const struct {
        Palette palette;
        std::string table;
    } rows[] = {
        {schemeOf(black, white, {255, 255, 0}),
         "\\red255\\green255\\blue255;\\red255\\green255\\blue0;\\red255\\green255\\blue254;\\red0\\green0\\blue0;"},
        // Links that nobody could read: results are as good as normal text, but for their weight.
        {schemeOf(black, {0, 255, 0}, {0, 0, 139}),
         "\\red0\\green255\\blue0;\\red0\\green255\\blue1;\\red0\\green254\\blue0;\\red0\\green0\\blue0;"},
        {schemeOf(white, black, {0, 0, 159}),
         "\\red0\\green0\\blue0;\\red0\\green0\\blue159;\\red0\\green0\\blue1;\\red255\\green255\\blue255;"},
    };
    for (const auto& [palette, table] : rows) {
        ShownColors colors(palette);
        const std::string shown = changed(sheet, colors.toScreen());
        EXPECT_NE(shown.find("{\\colortbl;" + table + "}"), std::string::npos) << shown;
        EXPECT_EQ(changed(shown, colors.toFile()), saved);
    }
}

TEST(ShownColors, AreFoundForMoreThanAFileHas) {
    ShownColors colors(schemeOf(black, white, {255, 255, 0}));
    const ColorChange toScreen = colors.toScreen(), toFile = colors.toFile();
    for (std::int32_t color = 1000; color < 1600; ++color) {
        const std::int32_t shown = toScreen.ofCharacters(color);
        EXPECT_EQ(shown & 0xF8F8F8, 0xF8F8F8) << "seen to differ";
        EXPECT_EQ(toFile.ofCharacters(shown), color < 1511 ? color : 0) << "one of 512 is that of normal text";
    }
    EXPECT_EQ(toFile.ofCharacters(0x123456), 0x123456);
}

}  // namespace
}  // namespace calquo
