// Where the main window and its parts stand, worked out from sizes alone.
#pragma once

#include <vector>

#include "widgets/geometry.h"

namespace calquo {

/// What the layout is worked out from, in pixels.
struct WindowParts {
    Size leftCaption;          ///< The caption panel at the left; its height is the caption strip's.
    Size rightCaption;         ///< The caption panel at the right.
    std::vector<Size> panels;  ///< The open button panels, from top to bottom.
    bool panelsHidden = false;
    Size smallestWorkArea;  ///< Less than this is too small to work in.
};

/// The rectangles of the parts in the client area. That of a hidden panel has no size.
struct WindowLayout {
    Rectangle leftCaption;
    Rectangle rightCaption;
    Rectangle title;  ///< The caption strip between the two panels.
    std::vector<Rectangle> panels;
    Rectangle workArea;
};

/// The smallest client area that holds the caption strip, the panels that are shown and a usable work area.
Size smallestClient(const WindowParts& parts);

/// The layout of a client area. A client area smaller than the smallest gives a work area without width or height,
/// never a negative one.
WindowLayout layOutWindow(Size client, const WindowParts& parts);

/// The rectangle of a window that is to be shown: `wanted` as it is when any of the screens' usable areas shows a part
/// of it and it is at least `smallest`; else half of the nearest area, the first of the list, in its middle.
Rectangle reachableRectangle(const Rectangle& wanted, Size smallest, const std::vector<Rectangle>& usableAreas);

/// The maximized window: a screen's usable area with all but one pixel of the sizing frame around it. `frame` is the
/// window around an empty client area at the origin.
Rectangle maximizedRectangle(const Rectangle& usableArea, const Rectangle& frame);

}  // namespace calquo
