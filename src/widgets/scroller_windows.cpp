// The content is a window of its own as high as it needs: to scroll is to move one window, which the system clips.
#include "widgets/scroller.h"

#include <algorithm>

#include "widgets/screens.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// How far the user wants a notch of the wheel to scroll, in pixels.
int notchOfWheel(int viewHeight) {
    UINT rows = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &rows, 0);
    // A page is not a number of rows, and more rows than a page would pass some by.
    const auto rowsInView = static_cast<UINT>(std::max(1, viewHeight / buttonSize()));
    return static_cast<int>(std::min(rows, rowsInView)) * buttonSize();
}

}  // namespace

Scroller::Scroller(WindowHandle parent)
    : Panel(parent, {}), content_(handle(), {}), bar_(handle(), view_, [this] { showAtOnce(); }) {}

void Scroller::place(const Rectangle& rectangle, int contentHeight) {
    contentHeight_ = contentHeight;
    view_.fit({contentHeight, rectangle.height, buttonSize()});
    moveTo(rectangle);
    moveContent();
    const int width = bar_.preferredSize().width;
    if (view_.scrolls()) {
        bar_.moveTo({rectangle.width - width, 0, width, rectangle.height});
        bar_.show();
    } else {
        bar_.hide();
    }
    show();
}

void Scroller::bringIntoView(Stretch part) {
    view_.bringIntoView(part);
    moveContent();
}

bool Scroller::turnWheel(const WheelEvent& turn) {
    const RECT place = edgesOf(windowRectangle(handle()));
    const bool isOver = PtInRect(&place, {turn.position.left, turn.position.top}) != 0;
    if (!isOver || !view_.scrolls() || IsWindowVisible(handle()) == 0) {
        return false;
    }
    view_.turnWheel(turn.delta, notchOfWheel(rectangle().height));
    showAtOnce();
    return true;
}

void Scroller::moveContent() {
    content_.moveTo({0, -view_.offset(), rectangle().width, std::max(contentHeight_, rectangle().height)});
    bar_.refresh();
}

void Scroller::showAtOnce() {
    moveContent();
    // Messages of the mouse, which come before those that ask for painting, would leave it behind.
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

}  // namespace calquo
