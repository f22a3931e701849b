// A window that shows a part of the widgets that stand on it, and scrolls them by the wheel and by a thin bar.
#pragma once

#include "widgets/panel.h"
#include "widgets/scrolled_view.h"
#include "widgets/thin_bar.h"

namespace calquo {

class Scroller : public Panel {
public:
    explicit Scroller(WindowHandle parent);

    /// The parent of the widgets that are scrolled.
    WindowHandle content() const { return content_.handle(); }

    /// Moves the window to a rectangle in its parent's client area and gives its content a height. The bar is over the
    /// right edge as long as not all of the content is seen.
    void place(const Rectangle& rectangle, int contentHeight);
    void bringIntoView(Stretch part);
    /// Scrolls by rows of buttons where the wheel is turned over this window; false where there is nothing to scroll.
    bool turnWheel(const WheelEvent& turn);

private:
    void moveContent();
    void showAtOnce();

    int contentHeight_ = 0;
    ScrolledView view_;
    Panel content_;
    ThinBar bar_;
};

}  // namespace calquo
