// Where the main window and its parts stand, as window_layout works it out, whenever one of them or the screen changes.
#include <algorithm>

#include "shell/main_window.h"
#include "widgets/painting.h"
#include "widgets/screens.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// What a usable work area measures at least, in buttons.
constexpr Size smallestWorkAreaInButtons{10, 5};

/// How much of the caption a person needs to drag the window: three buttons, half as high.
Size draggedPiece() { return {3 * buttonSize(), buttonSize() / 2}; }

/// The maximized window on the screen that a window is on.
Rectangle maximizedRectangleOf(HWND window, const Rectangle& frame) {
    return maximizedRectangle(screenOf(window).usableArea, frame);
}

}  // namespace

WindowLayout MainWindow::layout() const { return layOutWindow(clientSize(handle()), parts()); }

WindowParts MainWindow::parts() const {
    WindowParts parts;
    parts.leftCaption = caption_->left().preferredSize();
    parts.rightCaption = caption_->right().preferredSize();
    parts.panels = panels_.preferredSizes();
    parts.panelsHidden = settings_.boolean(BooleanSetting::HideButtons);
    parts.smallestWorkArea = {smallestWorkAreaInButtons.width * buttonSize(),
                              smallestWorkAreaInButtons.height * buttonSize()};
    return parts;
}

Size MainWindow::smallestWindow() const {
    const Rectangle needed = windowAroundClient(smallestClient(parts()));
    // More than the screen has would put a part of the window out of reach.
    const Rectangle most = maximizedRectangleOf(handle(), windowAroundClient({}));
    return {std::min(needed.width, most.width), std::min(needed.height, most.height)};
}

std::optional<SizeLimits> MainWindow::sizeLimits() const {
    const Rectangle most = maximizedRectangleOf(handle(), windowAroundClient({}));
    const Rectangle screen = screenOf(handle()).whole;
    SizeLimits limits{{most.left - screen.left, most.top - screen.top, most.width, most.height}, std::nullopt};
    if (caption_ != nullptr) {
        limits.smallest = smallestWindow();
    }
    return limits;
}

void MainWindow::moveWhereItCanBeReached() {
    const Rectangle rectangle = windowRectangle(handle());
    WindowReach reach;
    reach.frame = windowAroundClient({});
    reach.captionHeight = caption_->left().preferredSize().height;
    reach.captionPiece = draggedPiece();
    reach.smallest = smallestWindow();
    // A stored rectangle counts as it is: the layout enlarges it where it must. The system's choice may have no size.
    reach.mayBeSmall = settings_.windowRect().has_value();
    const Rectangle reachable = reachableRectangle(rectangle, reach, usableAreasAround(handle()));
    if (reachable != rectangle) {
        MoveWindow(handle(), reachable.left, reachable.top, reachable.width, reachable.height, FALSE);
    }
}

bool MainWindow::onPlacing(Rectangle& rectangle) {
    // The system works out the place on other screens from that on the main one.
    const bool isMaximized = IsZoomed(handle()) != 0 && IsIconic(handle()) == 0;
    if (isMaximized) {
        rectangle = maximizedRectangle(screenAt(rectangle).usableArea, windowAroundClient({}));
    }
    return isMaximized;
}

bool MainWindow::onMoved() {
    if (!created_) {
        return true;
    }
    if (IsIconic(handle()) == 0) {
        caption_->showMaximized(IsZoomed(handle()) != 0);
        layOut();
        InvalidateRect(handle(), nullptr, FALSE);
        if (GetFocus() == handle()) {
            SetFocus(focusTarget());  // what is minimized could not pass it on
        }
    }
    // Also while minimized or maximized: the next start is to find the last rectangle that the system reported.
    const RECT edges = edgesOf(windowRectangle(handle()));
    settings_.setWindowRect({edges.left, edges.top, edges.right, edges.bottom});
    return true;
}

bool MainWindow::onScaleChanged(int dotsPerInch, const Rectangle& suggested) {
    setScale(dotsPerInch);
    if (commands_ == nullptr) {
        return true;  // there is nothing yet that has a scale
    }
    hideHint();
    caption_->left().fitToScale();
    caption_->right().fitToScale();
    panels_.fitToScale();
    workArea_->fitToScale();
    MoveWindow(handle(), suggested.left, suggested.top, suggested.width, suggested.height, FALSE);
    layOutAndRefresh();
    return true;
}

void MainWindow::layOut() {
    const bool isSizable = IsZoomed(handle()) == 0 && IsIconic(handle()) == 0;
    if (isSizable && !isSizing_) {
        const Rectangle window = windowRectangle(handle());
        const Rectangle place =
            growth_.rectangleFor(window, smallestWindow(), maximizedRectangleOf(handle(), windowAroundClient({})));
        if (place != window) {
            isSizing_ = true;
            SetWindowPos(handle(), nullptr, place.left, place.top, place.width, place.height,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            isSizing_ = false;
        }
    }
    const WindowLayout positions = layout();
    caption_->left().moveTo(positions.leftCaption);
    caption_->left().layOut();
    caption_->right().moveTo(positions.rightCaption);
    caption_->right().layOut();
    panels_.layOut(positions);
    if (tips_ != nullptr && workArea_->rectangle() != positions.workArea) {
        tips_->hide();
    }
    workArea_->moveTo(positions.workArea);
}

void MainWindow::layOutAndRefresh() {
    layOut();
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace calquo
