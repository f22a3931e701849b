// Where the parts of the main window stand, worked out from their sizes alone.
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
    Size smallestWorkArea;  ///< Less than this is no place to work in.
};

/// The places of the parts in the client area. A hidden panel has a place without a size.
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

/// The place of a window that is to be shown on a desk with `screens`, each a screen's rectangle without its taskbar:
/// `wanted` as it is when any screen shows a part of it and it is at least `smallest`; else half of the nearest
/// screen, the first of the list, in its middle.
Rectangle reachablePlace(const Rectangle& wanted, Size smallest, const std::vector<Rectangle>& screens);

}  // namespace calquo
