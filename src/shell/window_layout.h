// Where the main window and its parts stand: calculated from sizes alone, without a window.
#pragma once

#include <optional>
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

/// The rectangles of the parts in the client area.
struct WindowLayout {
    Rectangle leftCaption;
    Rectangle rightCaption;
    Rectangle title;                ///< The caption strip between the two panels.
    Rectangle column;               ///< Where the panels are seen; without a width when none is shown.
    std::vector<Rectangle> panels;  ///< In the column, which may be too low for them. A hidden one has no size.
    Rectangle workArea;
};

/// The smallest client area that holds the caption strip, the panels that are shown and a usable work area.
Size smallestClient(const WindowParts& parts);

/// The layout of a client area. A client area smaller than the smallest gives a work area without width or height,
/// never a negative one.
WindowLayout layOutWindow(Size client, const WindowParts& parts);

/// What decides whether a person can reach a window, in pixels.
struct WindowReach {
    Rectangle frame;          ///< The window around an empty client area at the origin.
    int captionHeight = 0;    ///< Of the caption strip, inside the frame.
    Size captionPiece;        ///< So much of the strip must be in view.
    Size smallest;            ///< Less is too small to work in.
    bool mayBeSmall = false;  ///< Whether a smaller window may stay as it is where it is reached.
};

/// The rectangle of a window that is to be shown: `wanted` as it is when any of the screens' usable areas shows enough
/// of its caption; else moved into the nearest area, the first of the list, and made no larger than that. A window that
/// is too small to work in gets half of that area, in its middle.
Rectangle reachableRectangle(const Rectangle& wanted, const WindowReach& reach,
                             const std::vector<Rectangle>& usableAreas);

/// The maximized window, whose client area is a screen's usable area: all of the frame hangs over. `frame` is the
/// window around an empty client area at the origin.
Rectangle maximizedRectangle(const Rectangle& usableArea, const Rectangle& frame);

/// A window that is given another size. Its corner stays, but what it grows by is not to leave `most`, the maximized
/// window, at the right or below while there is room on the other side.
Rectangle resizedRectangle(const Rectangle& window, Size size, const Rectangle& most);

/// Lets a window grow with what it shows, and shrink with it again.
class WindowGrowth {
public:
    /// The rectangle for a window that is at `present` and needs the size `least`: that which it had before it grew, or
    /// as much more as it needs, grown as resizedRectangle() does it. A window that has another size than the last one
    /// told here was sized by a person, and one that is elsewhere was moved: its corner stays.
    Rectangle rectangleFor(const Rectangle& present, Size least, const Rectangle& most);

private:
    std::optional<Size> before_;
    std::optional<Point> corner_;  ///< At that time.
    Rectangle told_;
};

}  // namespace calquo
