// A widget's window, and the tooltip that it gets when the mouse first comes to it.
#include "widgets/component.h"

#include <utility>

#include "values/errors.h"
#include "widgets/annotation.h"
#include "widgets/tooltip.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {

Component::WidgetClass Component::registerClass(const wchar_t* systemClass, const wchar_t* name, std::uint16_t cursor) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    if (GetClassInfoExW(nullptr, systemClass, &description) == 0) {
        raise(ErrorCode::InternalFault);
    }
    const WidgetClass made{name, reinterpret_cast<SystemProcedure>(description.lpfnWndProc)};
    description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    description.lpszClassName = name;
    const HCURSOR own = cursor == 0 ? nullptr : LoadCursorW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(cursor));
    if (own != nullptr) {
        description.hCursor = own;
    }
    Window::registerClass(description);
    return made;
}

Component::Component(const WidgetClass& widgetClass, const Creation& creation)
    : Window(widgetClass.systemProcedure),
      className_(widgetClass.name),
      style_{WS_CHILD | creation.style, creation.extendedStyle},
      command_(creation.command),
      text_(creation.text) {
    if (creation.parent != nullptr) {
        Component::makeWindow(creation.parent);
    }
}

void Component::makeWindow(WindowHandle parent) {
    if (handle() != nullptr) {
        return;
    }
    parent_ = parent;
    create({className_, wideText(label()).c_str(), style_, {}, parent_, command_});
    if (placed_) {
        place(SWP_SHOWWINDOW | SWP_NOREDRAW);  // its parent has painted what it shows
    }
}

Component* Component::of(WindowHandle window) { return dynamic_cast<Component*>(Window::of(window)); }

bool Component::onCommand(const Notification&) { return false; }

void Component::draw(DrawingContext, Size) {}

void Component::setChecked(bool) {}

bool Component::onMouse(const MouseEvent& event) {
    if (event.action == MouseAction::Move && !tooltip_ && !description().empty()) {
        // Made when it is first wanted: most widgets never need theirs.
        tooltip_ = makeTooltip(handle(), description(), event.position);
    }
    return false;
}

void Component::onDescriptionWanted() {
    // Not before: most windows are never asked, and hundreds of annotations would cost the program's start.
    if (!annotated_ && !spokenName().empty()) {
        annotated_ = annotateName(handle(), wideText(spokenName()));
    }
}

void Component::onDestroy() {
    if (std::exchange(annotated_, false)) {
        removeAnnotation(handle());
    }
}

void Component::setText(std::string_view text) {
    text_ = text;
    tooltip_.reset();  // made anew from the new text
    if (std::exchange(annotated_, false)) {
        removeAnnotation(handle());
        onDescriptionWanted();
    }
    SetWindowTextW(handle(), wideText(label()).c_str());
}

void Component::showIn(FontHandle font) { SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE); }

void Component::moveTo(const Rectangle& rectangle) {
    // A layout is made anew whenever anything changes, and hundreds of windows are in it.
    if (rectangle == rectangle_) {
        return;
    }
    rectangle_ = rectangle;
    const bool isShown = std::exchange(placed_, true);
    if (handle() != nullptr) {
        place(isShown ? 0 : SWP_SHOWWINDOW);
        onPlaced();
    }
}

void Component::place(std::uint32_t flags) const {
    SetWindowPos(handle(), nullptr, rectangle_.left, rectangle_.top, rectangle_.width, rectangle_.height + dropHeight_,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE | flags);
}

void Component::show() { ShowWindow(handle(), SW_SHOWNA); }

void Component::hide() { ShowWindow(handle(), SW_HIDE); }

void Component::giveFocus() { SetFocus(handle()); }

}  // namespace calquo
