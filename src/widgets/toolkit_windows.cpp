// The scale of the widgets and their fonts.
#include "widgets/toolkit.h"

#include <algorithm>
#include <cwchar>
#include <map>
#include <vector>

#include "widgets/fonts.h"
#include "widgets/screens.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Narrow enough for the longest unit names, and clear in the smallest sizes.
constexpr const wchar_t* buttonFontNames[] = {
    L"Segoe UI", L"DejaVu Sans Condensed", L"DejaVu Sans", L"Liberation Sans", L"Tahoma", L"Arial"};

int scaleNow = designDotsPerInch;
int buttonSizeAtDesign = defaultButtonSize;

FontOwner makeButtonFont(int height, int averageWidth) {
    static const wchar_t* const name = installedFont(buttonFontNames);
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfWidth = averageWidth;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    std::wcsncpy(font.lfFaceName, name, LF_FACESIZE - 1);
    return FontOwner(CreateFontIndirectW(&font));
}

/// The fonts of the buttons of one height so far, by the average width of their characters; at 0 the one of usual
/// width.
using ButtonFonts = std::vector<FontOwner>;

FontHandle sharedButtonFont(int averageWidth) {
    static std::map<int, ButtonFonts> fontsByHeight;
    const int height = buttonSize() * 3 / 4;
    ButtonFonts& fonts = fontsByHeight[height];
    const auto index = static_cast<std::size_t>(averageWidth);
    if (index >= fonts.size()) {
        fonts.resize(index + 1);
    }
    if (!fonts[index]) {
        fonts[index] = makeButtonFont(height, averageWidth);
    }
    return fonts[index].get();
}

struct TextFonts {
    FontOwner text;
    FontOwner bold;
    FontOwner heading;
};

const TextFonts& textFonts() {
    static std::map<int, TextFonts> fontsByScale;
    const auto [place, isNew] = fontsByScale.try_emplace(scaleNow);
    TextFonts& fonts = place->second;
    if (isNew) {
        LOGFONTW description = messageFont(scaleNow);
        fonts.text = FontOwner(CreateFontIndirectW(&description));
        description.lfWeight = FW_BOLD;
        fonts.bold = FontOwner(CreateFontIndirectW(&description));
        description.lfHeight = description.lfHeight * 3 / 2;
        fonts.heading = FontOwner(CreateFontIndirectW(&description));
    }
    return fonts;
}

}  // namespace

void setScale(int dotsPerInch) { scaleNow = dotsPerInch; }

int scale() { return scaleNow; }

void setButtonSize(int pixels) { buttonSizeAtDesign = std::max(pixels, smallestButtonSize); }

int buttonSize() { return scaled(buttonSizeAtDesign); }

FontHandle buttonFont() { return sharedButtonFont(0); }

FontHandle narrowButtonFont(int averageWidth) { return sharedButtonFont(averageWidth); }

FontHandle textFont() { return textFonts().text.get(); }

FontHandle boldTextFont() { return textFonts().bold.get(); }

FontHandle headingFont() { return textFonts().heading.get(); }

}  // namespace calquo
