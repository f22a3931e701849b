// The looks of the bar, and what the mouse does to it.
#include "widgets/thin_bar.h"

#include "widgets/painting.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

void fill(HDC context, const RECT& area, Color color) {
    SetDCBrushColor(context, colorReference(color));
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace

const Component::WidgetClass& ThinBar::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoBar");
    return registered;
}

ThinBar::ThinBar(WindowHandle parent, ScrolledView& view, std::function<void()> scrolled)
    : Component(widgetClass(), {parent, 0, WS_CLIPSIBLINGS, {}}), view_(view), scrolled_(std::move(scrolled)) {
    SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

Size ThinBar::preferredSize() const { return {buttonSize() / 4, buttonSize()}; }

void ThinBar::refresh() { InvalidateRect(handle(), nullptr, FALSE); }

bool ThinBar::onMouse(const MouseEvent& event) {
    switch (event.action) {
        case MouseAction::Press:
            press(event.position.top);
            break;
        case MouseAction::Move:
            if (grip_) {
                view_.moveThumb(event.position.top - *grip_);
                scrolled_();
            }
            break;
        case MouseAction::Release:
            if (grip_) {
                ReleaseCapture();
            }
            break;
        case MouseAction::CaptureLost:
            grip_.reset();
            refresh();
            break;
    }
    return true;
}

void ThinBar::press(int top) {
    const Stretch thumb = view_.thumb();
    if (top >= thumb.top && top < thumb.top + thumb.height) {
        grip_ = top - thumb.top;
        SetCapture(handle());
        refresh();
    } else {
        view_.page(top > thumb.top, buttonSize());
        scrolled_();
    }
}

bool ThinBar::onPaint() {
    const BufferedPainting painting(handle(), parent());
    const auto [width, height] = painting.size();
    const Stretch thumb = view_.thumb();
    fill(painting.context(), {0, 0, width, height}, palette().barGroove);
    fill(painting.context(), {0, thumb.top, width, thumb.top + thumb.height},
         grip_ ? palette().barHeldThumb : palette().barThumb);
    painting.show();
    return true;
}

}  // namespace calquo
