// The window's own caption: two panels of buttons in its corners and the title between them.
#pragma once

#include "panels/button_panel.h"
#include "widgets/color.h"
#include "widgets/geometry.h"

namespace calquo {

class CaptionStrip {
public:
    explicit CaptionStrip(WindowHandle parent);

    ButtonPanel& left() { return left_; }
    ButtonPanel& right() { return right_; }

    /// Lets the maximize button restore the window, and back.
    void showMaximized(bool maximized);
    /// Takes the colours of an active window, or of another.
    void showActive(bool active);

    /// The colour behind the title and the buttons.
    Color ground() const;
    /// Draws the title in its place between the panels.
    void paint(DrawingContext context, const Rectangle& place) const;

private:
    void giveLooks();

    ButtonPanel left_;
    ButtonPanel right_;
    bool maximized_ = false;
    bool active_ = false;
};

}  // namespace calquo
