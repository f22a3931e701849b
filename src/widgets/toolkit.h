// What all widgets share: the scale that they are made for, the size of the buttons, and the fonts.
#pragma once

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

inline constexpr int smallestButtonSize = 12;  // at 96 dots per inch, as is the next
inline constexpr int defaultButtonSize = 20;

/// Sets the dots per inch that widgets are made for from now on. A widget that exists takes them over by its
/// fitToScale().
void setScale(int dotsPerInch);
int scale();

/// The scale of a window other than the main one, for as long as its widgets are made or measured.
class ScaleInForce {
public:
    explicit ScaleInForce(int dotsPerInch) : before_(scale()) { setScale(dotsPerInch); }
    ~ScaleInForce() { setScale(before_); }
    ScaleInForce(const ScaleInForce&) = delete;
    ScaleInForce& operator=(const ScaleInForce&) = delete;

private:
    int before_;
};

/// A length of `pixels` at 96 dots per inch, in the scale in force.
inline int scaled(int pixels) { return scaledToScreen(pixels, scale()); }

/// Sets the height of a button, in pixels at 96 dots per inch; less than 12 counts as 12. The font of the buttons
/// follows it: three quarters as high.
void setButtonSize(int pixels);
/// The same in the scale in force.
int buttonSize();

// Fonts live as long as the program, each in the scale in force when it is asked for.

/// The font of the buttons, as high as the button size asks for.
FontHandle buttonFont();
/// One as high, whose characters are `averageWidth` pixels wide on average, 1 or more.
FontHandle narrowButtonFont(int averageWidth);
/// The font of all other texts: the one that the user has chosen for messages.
FontHandle textFont();
/// The same, bold.
FontHandle boldTextFont();
/// The same, half as high again and bold.
FontHandle headingFont();

}  // namespace calquo
