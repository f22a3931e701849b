// Points, sizes and rectangles on the screen, in pixels.
#pragma once

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

/// The dots per inch at which lengths in the source are meant.
inline constexpr int designDotsPerInch = 96;

/// A length of `pixels` at 96 dots per inch, on a screen of `dotsPerInch`; rounded to the nearest pixel.
constexpr int scaledToScreen(int pixels, int dotsPerInch) {
    return (pixels * dotsPerInch + designDotsPerInch / 2) / designDotsPerInch;
}

}  // namespace calquo
