// A widget's window, and the window procedure that leads its messages to the widget.
#include "widgets/component.h"

#include "values/errors.h"
#include "widgets/kept_exception.h"
#include "widgets/windows_api.h"

namespace calquo {

/// Stands in front of the window procedure of the system's class.
struct Component::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wide, LPARAM extra) {
        auto* const component = reinterpret_cast<Component*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (component == nullptr) {
            return DefWindowProcW(window, code, wide, extra);
        }
        const Message message{code, wide, extra};
        if (code == WM_NCDESTROY) {
            return component->forgetWindow(message);
        }
        // A message whose filter failed counts as dealt with.
        const auto answer = keepingExceptions(std::optional<MessageAnswer>(0), [&] {
            return component->filter_ ? component->filter_(message) : std::nullopt;
        });
        return answer ? *answer : component->sendToSystemClass(message);
    }

    static void install(Component& component) {
        const HWND window = component.handle();
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&component));
        const LONG_PTR previous = SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(receive));
        component.systemProcedure_ = reinterpret_cast<SystemProcedure>(previous);
    }
};

Component::Component(const Creation& creation, MessageFilter filter)
    : filter_(std::move(filter)), parent_(creation.parent), command_(creation.command) {
    const HMENU identifier = reinterpret_cast<HMENU>(static_cast<std::uintptr_t>(command_));
    window_ = WindowOwner(CreateWindowExW(creation.extendedStyle, creation.systemClass, L"",
                                          WS_CHILD | WS_VISIBLE | creation.style, 0, 0, 0, 0, parent_, identifier,
                                          GetModuleHandleW(nullptr), nullptr));
    if (!window_) {
        raise(ErrorCode::InternalFault);
    }
    Procedure::install(*this);
}

Component::~Component() {
    // From here on the derived parts that the filter speaks to are gone.
    filter_ = nullptr;
    // The last messages still need the handle; the final one gives it up.
    if (window_) {
        destroyWindow(handle());
    }
}

void Component::giveFocus() { SetFocus(handle()); }

void Component::moveTo(const Rectangle& place) {
    MoveWindow(handle(), place.left, place.top, place.width, place.height, TRUE);
}

MessageAnswer Component::sendToSystemClass(const Message& message) const {
    return CallWindowProcW(reinterpret_cast<WNDPROC>(systemProcedure_), handle(), message.code, message.wide,
                           message.extra);
}

int Component::dotsPerInch() const {
    const HDC context = GetDC(handle());
    const int dots = GetDeviceCaps(context, LOGPIXELSY);
    ReleaseDC(handle(), context);
    return dots;
}

MessageAnswer Component::forgetWindow(const Message& message) {
    const MessageAnswer answer = sendToSystemClass(message);
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    window_.release();
    return answer;
}

}  // namespace calquo
