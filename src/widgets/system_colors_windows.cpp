// Asks the system for high contrast and for its colours.
#include "widgets/system_colors.h"

#include <utility>

#include "widgets/windows_api.h"

namespace calquo {
namespace {

constinit Palette inForce;

bool isHighContrastOn() {
    HIGHCONTRASTW state{};
    state.cbSize = sizeof state;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof state, &state, 0) != 0 &&
           (state.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

Color systemColor(int index) {
    const COLORREF color = GetSysColor(index);
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

SystemColors systemColors() {
    SystemColors colors;
    for (const auto& [color, index] : {std::pair(&colors.window, COLOR_WINDOW),
                                       {&colors.windowText, COLOR_WINDOWTEXT},
                                       {&colors.highlight, COLOR_HIGHLIGHT},
                                       {&colors.highlightText, COLOR_HIGHLIGHTTEXT},
                                       {&colors.hotLight, COLOR_HOTLIGHT},
                                       {&colors.buttonFace, COLOR_BTNFACE},
                                       {&colors.buttonText, COLOR_BTNTEXT},
                                       {&colors.activeCaption, COLOR_ACTIVECAPTION},
                                       {&colors.captionText, COLOR_CAPTIONTEXT},
                                       {&colors.inactiveCaption, COLOR_INACTIVECAPTION},
                                       {&colors.inactiveCaptionText, COLOR_INACTIVECAPTIONTEXT},
                                       {&colors.tipGround, COLOR_INFOBK},
                                       {&colors.tipText, COLOR_INFOTEXT}}) {
        *color = systemColor(index);
    }
    return colors;
}

}  // namespace

const Palette& palette() { return inForce; }

bool takeSystemColors() {
    const Palette now = isHighContrastOn() ? highContrastPalette(systemColors()) : Palette{};
    return std::exchange(inForce, now) != now;
}

}  // namespace calquo
