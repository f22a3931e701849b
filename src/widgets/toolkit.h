// What all widgets share: the size of the buttons, and the fonts.
#pragma once

#include "widgets/handles.h"

namespace calquo {

inline constexpr int smallestButtonSize = 12;
inline constexpr int defaultButtonSize = 20;  // at 96 dots per inch

/// Sets the height of a button, in pixels, for the widgets made from now on; less than 12 counts as 12. The font of the
/// buttons follows it: three quarters as high. Ends the fonts handed out before.
void setButtonSize(int pixels);
int buttonSize();

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
