// The place and the looks of the hint.
#include "widgets/hint_line.h"

#include "widgets/fonts.h"
#include "widgets/painting.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Between the text and the line's edges, in buttons.
int padding() { return buttonSize() / 4; }

}  // namespace

const Component::WidgetClass& HintLine::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoHint");
    return registered;
}

HintLine::HintLine(WindowHandle parent) : Component(widgetClass(), {parent, 0, WS_CLIPSIBLINGS, {}}) {
    SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void HintLine::tell(const std::wstring& text, const Rectangle& area) {
    hint_ = text;
    // What screen readers say.
    SetWindowTextW(handle(), text.c_str());
    const int height = brokenHeight(textFont(), text, area.width - 2 * padding()) + 2 * padding();
    moveTo({area.left, area.top + area.height - height, area.width, height});
    show();
    InvalidateRect(handle(), nullptr, FALSE);
}

bool HintLine::onPaint() {
    const Painting painting(handle());
    const Size size = clientSize(handle());
    const HDC context = painting.context();
    const RECT whole{0, 0, size.width, size.height};
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    SetDCBrushColor(context, colorReference(palette().hint.ground));
    FillRect(context, &whole, brush);
    SetDCBrushColor(context, colorReference(palette().hintEdge));
    FrameRect(context, &whole, brush);
    const Selection font(context, textFont());
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorReference(palette().hint.ink));
    RECT inside{padding(), padding(), size.width - padding(), size.height - padding()};
    DrawTextW(context, hint_.c_str(), static_cast<int>(hint_.size()), &inside, DT_WORDBREAK | DT_NOPREFIX);
    return true;
}

}  // namespace calquo
