// The window's own caption: two panels of buttons in its corners and the title between them.
#pragma once

#include "panels/button_panel.h"
#include "widgets/geometry.h"

namespace calquo {

class CaptionStrip {
public:
    explicit CaptionStrip(WindowHandle parent);

    ButtonPanel& left() { return left_; }
    ButtonPanel& right() { return right_; }

    /// Lets the maximize button restore the window, and back.
    void showMaximized(bool maximized);

    /// Draws the strip between the panels: the title on a ground that tells whether the window is `active`.
    static void paint(DrawingContext context, const Rectangle& place, bool active);

private:
    ButtonPanel left_;
    ButtonPanel right_;
    Button* maximizeButton_ = nullptr;  ///< Of the right panel.
    bool maximized_ = false;
};

}  // namespace calquo
