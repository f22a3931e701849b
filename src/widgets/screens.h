// The screens, and the rectangles that windows take up on them.
#pragma once

#include <cstdint>
#include <vector>

#include "widgets/geometry.h"
#include "widgets/handles.h"

struct tagLOGFONTW;
struct tagRECT;

namespace calquo {

struct Screen {
    Rectangle whole;
    Rectangle usableArea;  ///< Without the taskbar.
};

/// The screen that shows most of a window, or the nearest one.
Screen screenOf(WindowHandle window);

/// The screen that shows most of a rectangle, or the nearest one.
Screen screenAt(const Rectangle& rectangle);

/// The usable areas of all screens, that of the window's own screen first (and once more in its turn).
std::vector<Rectangle> usableAreasAround(WindowHandle window);

/// Dots per inch of the screen that a window is on, and of the system: what lengths without a window are in.
int dotsPerInchOf(WindowHandle window);
int systemDotsPerInch();

/// The font that the user has chosen for messages, as high as it is at `dotsPerInch`.
tagLOGFONTW messageFont(int dotsPerInch);

/// A window with its frame, on the screen.
Rectangle windowRectangle(WindowHandle window);

/// The styles of a window that its frame depends on.
struct WindowStyle {
    std::uint32_t style = 0;
    std::uint32_t extendedStyle = 0;
};

/// The window around a client area of `client` at `dotsPerInch`, by its upper left corner in the client's coordinates.
Rectangle windowAround(Size client, WindowStyle style, int dotsPerInch);

/// The system's rectangle as ours, and back.
Rectangle rectangleOf(const tagRECT& edges);
tagRECT edgesOf(const Rectangle& rectangle);

}  // namespace calquo
