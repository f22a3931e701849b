// Any colours of the system and of a file: in high contrast what the user can read stays readable, and a sheet that is
// shown in the system's colours gets those of its file back.
#include <set>

#include "target.h"
#include "widgets/palette.h"
#include "workarea/shown_colors.h"

namespace calquo {
namespace {

Color colorFrom(InputReader& reader) {
    const std::uint8_t red = reader.byte();
    const std::uint8_t green = reader.byte();
    return {red, green, reader.byte()};
}

double contrastOf(InkAndGround pair) { return contrast(pair.ink, pair.ground); }

void checkReadable(const Palette& palette, const SystemColors& system) {
    const double least = std::min({contrast(system.windowText, system.window),
                                   contrast(system.highlightText, system.highlight), readableContrast});
    for (const InkAndGround pair :
         {palette.sheet, palette.hint, palette.selectedRow, palette.activeCaption.title, palette.inactiveCaption.title,
          InkAndGround{palette.result, palette.sheet.ground}}) {
        require(contrastOf(pair) >= least, "a text is harder to read than those of the system");
    }
}

std::int32_t numberOf(Color color) { return color.red << 16 | color.green << 8 | color.blue; }

bool looksLike(std::int32_t number, Color color) {
    constexpr int lowestBits = 7;
    return ((number >> 16 ^ color.red) & 0xFF) <= lowestBits && ((number >> 8 ^ color.green) & 0xFF) <= lowestBits &&
           ((number ^ color.blue) & 0xFF) <= lowestBits;
}

void checkWayBack(const Palette& palette, InputReader& reader) {
    ShownColors colors(palette);
    const ColorChange toScreen = colors.toScreen();
    const ColorChange toFile = colors.toFile();
    if (!colors.areChanged()) {
        require(!toScreen.ofCharacters && !toFile.behindThem, "colours are changed to what they are");
        return;
    }
    require(
        looksLike(numberOf(colors.normal()), palette.sheet.ink) && looksLike(numberOf(colors.result()), palette.result),
        "the program's own text is in another colour");
    constexpr std::size_t mostColors = 500;
    std::set<std::int32_t> seen;
    while (!reader.isAtEnd() && seen.size() < mostColors) {
        const auto ofFile = static_cast<std::int32_t>(reader.number(3));
        seen.insert(ofFile);
        const std::int32_t characters = toScreen.ofCharacters(ofFile);
        const std::int32_t behind = toScreen.behindThem(ofFile);
        const bool isResult = looksLike(characters, palette.result);
        require(isResult || looksLike(characters, palette.sheet.ink), "a text is in a colour of its own");
        require(looksLike(behind, palette.sheet.ground), "a background is in a colour of its own");
        require(toFile.ofCharacters(characters) == ofFile && toFile.behindThem(behind) == ofFile,
                "a colour of the file is lost");
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    SystemColors system;
    for (Color* const color :
         {&system.window, &system.windowText, &system.highlight, &system.highlightText, &system.hotLight,
          &system.buttonFace, &system.buttonText, &system.activeCaption, &system.captionText, &system.inactiveCaption,
          &system.inactiveCaptionText, &system.tipGround, &system.tipText}) {
        *color = colorFrom(reader);
    }
    const Palette palette = highContrastPalette(system);
    checkReadable(palette, system);
    checkWayBack(palette, reader);
}

const Target target("colors", check);

}  // namespace
}  // namespace calquo
