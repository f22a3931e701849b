// The fonts of the widgets.
#include "widgets/toolkit.h"

#include <algorithm>
#include <cwchar>
#include <vector>

#include "widgets/fonts.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Narrow enough for the longest unit names, and clear in the smallest sizes.
constexpr const wchar_t* buttonFontNames[] = {
    L"Segoe UI", L"DejaVu Sans Condensed", L"DejaVu Sans", L"Liberation Sans", L"Tahoma", L"Arial"};

int buttonSizeNow = defaultButtonSize;
/// The fonts of the buttons so far, by the average width of their characters; at 0 the one of usual width.
std::vector<FontOwner> buttonFonts;

FontOwner makeButtonFont(int averageWidth) {
    static const wchar_t* const name = installedFont(buttonFontNames);
    LOGFONTW font{};
    font.lfHeight = buttonSizeNow * 3 / 4;
    font.lfWidth = averageWidth;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    std::wcsncpy(font.lfFaceName, name, LF_FACESIZE - 1);
    return FontOwner(CreateFontIndirectW(&font));
}

FontHandle sharedButtonFont(int averageWidth) {
    const auto index = static_cast<std::size_t>(averageWidth);
    if (index >= buttonFonts.size()) {
        buttonFonts.resize(index + 1);
    }
    if (!buttonFonts[index]) {
        buttonFonts[index] = makeButtonFont(averageWidth);
    }
    return buttonFonts[index].get();
}

LOGFONTW messageFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    return metrics.lfMessageFont;
}

}  // namespace

void setButtonSize(int pixels) {
    buttonSizeNow = std::max(pixels, smallestButtonSize);
    buttonFonts.clear();
}

int buttonSize() { return buttonSizeNow; }

FontHandle buttonFont() { return sharedButtonFont(0); }

FontHandle narrowButtonFont(int averageWidth) { return sharedButtonFont(averageWidth); }

FontHandle textFont() {
    static const FontOwner font = [] {
        const LOGFONTW description = messageFont();
        return FontOwner(CreateFontIndirectW(&description));
    }();
    return font.get();
}

FontHandle boldTextFont() {
    static const FontOwner font = [] {
        LOGFONTW description = messageFont();
        description.lfWeight = FW_BOLD;
        return FontOwner(CreateFontIndirectW(&description));
    }();
    return font.get();
}

FontHandle headingFont() {
    static const FontOwner font = [] {
        LOGFONTW description = messageFont();
        description.lfHeight = description.lfHeight * 3 / 2;
        description.lfWeight = FW_BOLD;
        return FontOwner(CreateFontIndirectW(&description));
    }();
    return font.get();
}

}  // namespace calquo
