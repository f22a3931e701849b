// Colours of the screen: the red, green and blue parts of the sRGB space.
#pragma once

#include <cstdint>

namespace calquo {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color black{0, 0, 0};
inline constexpr Color white{255, 255, 255};

/// The colour as the system takes it: red in the lowest byte, then green, then blue.
constexpr std::uint32_t colorReference(Color color) {
    return color.red | std::uint32_t{color.green} << 8 | std::uint32_t{color.blue} << 16;
}

/// `color` with `percent` (0 to 100) of it replaced by `other`.
Color mixed(Color color, Color other, int percent);

/// The contrast of two colours, 1 (none) to 21 (black and white): the ratio of their relative luminances as the Web
/// Content Accessibility Guidelines 2.1 define it.
double contrast(Color first, Color second);

/// Black or white, whichever stands out more on `background`.
Color textColorOn(Color background);

}  // namespace calquo
