// The fonts of the widgets.
#include "widgets/toolkit.h"

#include <algorithm>
#include <cwchar>

#include "widgets/fonts.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Narrow enough for the longest unit names, and clear in the smallest sizes.
constexpr const wchar_t* buttonFontNames[] = {L"Segoe UI", L"DejaVu Sans", L"Liberation Sans", L"Tahoma", L"Arial"};

int buttonSizeNow = defaultButtonSize;
FontOwner buttonFontNow;

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

}  // namespace

void setButtonSize(int pixels) {
    buttonSizeNow = std::max(pixels, smallestButtonSize);
    buttonFontNow = makeButtonFont(0);
}

int buttonSize() { return buttonSizeNow; }

FontHandle buttonFont() {
    if (!buttonFontNow) {
        buttonFontNow = makeButtonFont(0);
    }
    return buttonFontNow.get();
}

FontOwner narrowButtonFont(int averageWidth) { return makeButtonFont(averageWidth); }

FontHandle textFont() {
    static const FontOwner font = [] {
        NONCLIENTMETRICSW metrics{};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
        return FontOwner(CreateFontIndirectW(&metrics.lfMessageFont));
    }();
    return font.get();
}

}  // namespace calquo
