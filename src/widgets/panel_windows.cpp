// The panel's window, and the layout of its children.
#include "widgets/panel.h"

#include <algorithm>

#include "widgets/button.h"
#include "widgets/painting.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// What paints its children must not leave them out.
std::uint32_t styleOf(const Panel::Creation& creation) {
    return WS_CLIPSIBLINGS | (creation.paintsChildren ? 0U : std::uint32_t{WS_CLIPCHILDREN});
}

}  // namespace

const Component::WidgetClass& Panel::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoPanel");
    return registered;
}

Panel::Panel(WindowHandle parent, const Creation& creation)
    : Component(widgetClass(), {parent,
                                creation.command,
                                styleOf(creation),
                                {},
                                creation.holdsTabStops ? std::uint32_t{WS_EX_CONTROLPARENT} : 0U}),
      direction_(creation.direction),
      hasMargin_((creation.style & panelMargin) != 0),
      paintsChildren_(creation.paintsChildren),
      awaitsChildren_(parent == nullptr || creation.makesChildrenLater) {}

Panel::~Panel() {
    // With the children's windows, which then need not vanish one by one.
    destroy();
}

void Panel::makeWindow(WindowHandle parent) {
    Component::makeWindow(parent);
    makeChildren();
}

bool Panel::makeChildren() {
    if (!awaitsChildren_) {
        return false;
    }
    for (const auto& child : children_) {
        child->makeWindow(handle());
    }
    awaitsChildren_ = false;  // not before, so that what has failed on the way is tried again
    return true;
}

HitArea Panel::onHitTest(HitArea byClass) const {
    // The gaps between its children are nobody's; until these are there all of it is the panel's.
    return awaitsChildren_ ? HitArea::Client : byClass;
}

bool Panel::onMouse(const MouseEvent& event) {
    if (!makeChildren()) {
        return Component::onMouse(event);
    }
    if (event.action == MouseAction::Press) {
        // It was meant for one of them.
        POINT point{event.position.left, event.position.top};
        ClientToScreen(handle(), &point);
        const HWND pressed = WindowFromPoint(point);
        if (IsChild(handle(), pressed) != 0) {
            ScreenToClient(pressed, &point);
            PostMessageW(pressed, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        }
    }
    return true;
}

int Panel::margin() const { return hasMargin_ ? buttonSize() / 4 : 0; }

void Panel::fitToScale() {
    for (const auto& child : children_) {
        child->fitToScale();
    }
}

Size Panel::preferredSize() const {
    Size inner;
    for (const auto& child : children_) {
        const Size size = child->preferredSize();
        inner = direction_ == Direction::Down ? Size{std::max(inner.width, size.width), inner.height + size.height}
                                              : Size{inner.width + size.width, std::max(inner.height, size.height)};
    }
    return {inner.width + 2 * margin(), inner.height + 2 * margin()};
}

void Panel::layOut() {
    const int width = rectangle().width - 2 * margin();
    if (direction_ == Direction::Down) {
        layOutDown(width);
    } else {
        layOutAcross(width);
    }
}

void Panel::layOutDown(int width) {
    int top = margin();
    for (const auto& child : children_) {
        Size size = child->preferredSize();
        // What a row lacks through the rounding of its buttons' widths is less than half a button: it is made even.
        if (size.width < width && 2 * (width - size.width) < buttonSize()) {
            size.width = width;
        }
        child->moveTo({margin(), top, size.width, size.height});
        child->layOut();
        top += size.height;
    }
}

void Panel::layOutAcross(int width) {
    const int preferred = preferredSize().width - 2 * margin();
    const auto placed = [&](int offset) { return margin() + (preferred == 0 ? 0 : offset * width / preferred); };
    int offset = 0;
    for (const auto& child : children_) {
        const Size size = child->preferredSize();
        const int left = placed(offset);
        offset += size.width;
        child->moveTo({left, margin(), placed(offset) - left, size.height});
        child->layOut();
    }
}

void Panel::drawChildren(DrawingContext context) const {
    POINT origin{};
    GetViewportOrgEx(context, &origin);
    for (const auto& child : children_) {
        const Rectangle area = child->rectangle();
        SetViewportOrgEx(context, origin.x + area.left, origin.y + area.top, nullptr);
        if (const auto* const button = dynamic_cast<const Button*>(child.get())) {
            button->drawFace(context, {area.width, area.height});
        } else if (const auto* const panel = dynamic_cast<const Panel*>(child.get())) {
            panel->drawChildren(context);
        }
    }
    SetViewportOrgEx(context, origin.x, origin.y, nullptr);
}

bool Panel::onPaint() {
    if (!paintsChildren_) {
        return false;
    }
    // Only what is invalid is painted, and no more of the children must count as painted.
    const RegionOwner invalid(CreateRectRgn(0, 0, 0, 0));
    GetUpdateRgn(handle(), invalid.get(), FALSE);
    RedrawWindow(handle(), nullptr, invalid.get(), RDW_VALIDATE | RDW_ALLCHILDREN);
    RedrawWindow(handle(), nullptr, invalid.get(), RDW_INVALIDATE | RDW_NOCHILDREN);
    const BufferedPainting painting(handle(), parent());
    drawChildren(painting.context());
    painting.show();
    return true;
}

bool Panel::onCommand(const Notification& notification) {
    sendCommand(parent(), notification);
    return true;
}

std::optional<Color> Panel::backgroundOf(WindowHandle) const {
    const Window* const around = Window::of(parent());
    return around == nullptr ? std::nullopt : around->backgroundOf(handle());
}

bool Panel::onDrawChild(WindowHandle child, DrawingContext context, Size size) {
    Component* const drawn = Component::of(child);
    if (drawn == nullptr) {
        return false;
    }
    drawn->draw(context, size);
    return true;
}

}  // namespace calquo
