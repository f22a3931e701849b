// Mixing, and contrast as a reader sees it.
#include "widgets/color.h"

#include <algorithm>
#include <cmath>

namespace calquo {
namespace {

std::uint8_t mixedPart(int part, int other, int percent) {
    return static_cast<std::uint8_t>((part * (100 - percent) + other * percent + 50) / 100);
}

/// The light of one part of a colour, 0 to 1, from its value in the sRGB space.
double linearPart(std::uint8_t part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double relativeLuminance(Color color) {
    return 0.2126 * linearPart(color.red) + 0.7152 * linearPart(color.green) + 0.0722 * linearPart(color.blue);
}

}  // namespace

Color mixed(Color color, Color other, int percent) {
    return {mixedPart(color.red, other.red, percent), mixedPart(color.green, other.green, percent),
            mixedPart(color.blue, other.blue, percent)};
}

double contrast(Color first, Color second) {
    const auto [darker, lighter] = std::minmax({relativeLuminance(first), relativeLuminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

Color textColorOn(Color background) {
    return contrast(black, background) >= contrast(white, background) ? black : white;
}

}  // namespace calquo
