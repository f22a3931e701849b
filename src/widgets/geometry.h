// Sizes and places on the screen, in pixels.
#pragma once

#include <algorithm>

namespace calquo {

struct Point {
    int left = 0;
    int top = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

struct Rectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

/// The place of a window of `size` in the middle of `around`, moved onto `screen` as far as it fits there.
constexpr Rectangle centredPlace(Size size, const Rectangle& around, const Rectangle& screen) {
    const auto placed = [](int length, int begin, int room, int screenBegin, int screenRoom) {
        const int latest = std::max(screenBegin, screenBegin + screenRoom - length);
        return std::clamp(begin + (room - length) / 2, screenBegin, latest);
    };
    return {placed(size.width, around.left, around.width, screen.left, screen.width),
            placed(size.height, around.top, around.height, screen.top, screen.height), size.width, size.height};
}

/// The dots per inch at which lengths in the source are meant.
inline constexpr int designDotsPerInch = 96;

/// A length of `pixels` at 96 dots per inch, on a screen of `dotsPerInch`; rounded to the nearest pixel.
constexpr int scaledToScreen(int pixels, int dotsPerInch) {
    return (pixels * dotsPerInch + designDotsPerInch / 2) / designDotsPerInch;
}

}  // namespace calquo
