// A widget's window, and the window procedure that leads its messages to the widget.
#include "widgets/component.h"

#include <utility>

#include "values/errors.h"
#include "widgets/kept_exception.h"
#include "widgets/tooltip.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {

/// Stands in front of the window procedure of the system's class.
struct Component::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wordParameter, LPARAM longParameter) {
        Component* const component = code == WM_NCCREATE ? install(window, longParameter) : ownerOf(window);
        if (component == nullptr) {
            return DefWindowProcW(window, code, wordParameter, longParameter);
        }
        const Message message{code, wordParameter, longParameter};
        if (code == WM_NCDESTROY) {
            return component->forgetWindow(message);
        }
        // A message that a widget failed at counts as dealt with. One that was dealt with may have ended the widget.
        const auto answer =
            keepingExceptions(std::optional<MessageAnswer>(0), [&] { return component->hear(message); });
        return answer ? *answer : component->sendToSystemClass(message);
    }

    static Component* ownerOf(HWND window) {
        return reinterpret_cast<Component*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    }

    /// Ties the window to the widget that is creating it.
    static Component* install(HWND window, LPARAM creation) {
        auto* const component =
            static_cast<Component*>(reinterpret_cast<const CREATESTRUCTW*>(creation)->lpCreateParams);
        if (component != nullptr) {
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(component));
            component->window_ = WindowOwner(window);
        }
        return component;
    }
};

Component::WidgetClass Component::registerClass(const wchar_t* systemClass, const wchar_t* name, std::uint16_t cursor) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSW description{};
    if (GetClassInfoW(nullptr, systemClass, &description) == 0) {
        raise(ErrorCode::InternalFault);
    }
    const WidgetClass made{name, reinterpret_cast<SystemProcedure>(description.lpfnWndProc)};
    description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    description.lpfnWndProc = Procedure::receive;
    description.hInstance = program;
    description.lpszClassName = name;
    const HCURSOR own = cursor == 0 ? nullptr : LoadCursorW(program, MAKEINTRESOURCEW(cursor));
    if (own != nullptr) {
        description.hCursor = own;
    }
    if (RegisterClassW(&description) == 0) {
        raise(ErrorCode::InternalFault);
    }
    return made;
}

Component::Component(const WidgetClass& widgetClass, const Creation& creation, MessageFilter filter)
    : parent_(creation.parent),
      command_(creation.command),
      systemProcedure_(widgetClass.systemProcedure),
      text_(creation.text) {
    const HMENU identifier = reinterpret_cast<HMENU>(static_cast<std::uintptr_t>(command_));
    const HWND created =
        CreateWindowExW(creation.extendedStyle, widgetClass.name, wideText(label()).c_str(), WS_CHILD | creation.style,
                        0, 0, 0, 0, parent_, identifier, GetModuleHandleW(nullptr), this);
    if (created == nullptr) {
        window_.release();
        raise(ErrorCode::InternalFault);
    }
    filter_ = std::move(filter);
}

Component::~Component() { destroy(); }

void Component::destroy() {
    // From here on the derived parts that the filter speaks to are gone.
    filter_ = nullptr;
    // The last messages still need the handle; the final one gives it up.
    if (window_) {
        destroyWindow(handle());
    }
}

std::optional<MessageAnswer> Component::hearChildCommand(const Message&) { return std::nullopt; }

void Component::draw(DrawingContext, Size) {}

void Component::setChecked(bool) {}

Component* Component::of(WindowHandle window) {
    const ULONG_PTR procedure = GetClassLongPtrW(window, GCLP_WNDPROC);
    const bool isWidget = procedure == reinterpret_cast<ULONG_PTR>(Procedure::receive);
    return isWidget ? Procedure::ownerOf(window) : nullptr;
}

std::string_view Component::label() const { return std::string_view(text_).substr(0, text_.find('|')); }

std::string_view Component::description() const {
    const std::size_t bar = text_.find('|');
    return bar == std::string::npos ? std::string_view() : std::string_view(text_).substr(bar + 1);
}

void Component::setText(std::string_view text) {
    text_ = text;
    tooltip_.reset();  // made anew from the new text
    SetWindowTextW(handle(), wideText(label()).c_str());
}

void Component::showIn(FontHandle font) { SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE); }

void Component::moveTo(const Rectangle& place) {
    // A layout is made anew whenever anything changes, and hundreds of windows are in it.
    if (place == place_) {
        return;
    }
    place_ = place;
    const UINT showing = std::exchange(placed_, true) ? 0U : static_cast<UINT>(SWP_SHOWWINDOW);
    SetWindowPos(handle(), nullptr, place.left, place.top, place.width, place.height + dropHeight_,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE | showing);
}

void Component::show() { ShowWindow(handle(), SW_SHOWNA); }

void Component::hide() { ShowWindow(handle(), SW_HIDE); }

void Component::giveFocus() { SetFocus(handle()); }

int Component::dotsPerInch() const {
    const HDC context = GetDC(handle());
    const int dots = GetDeviceCaps(context, LOGPIXELSY);
    ReleaseDC(handle(), context);
    return dots;
}

MessageAnswer Component::sendToSystemClass(const Message& message) const {
    return CallWindowProcW(reinterpret_cast<WNDPROC>(systemProcedure_), handle(), message.code, message.wordParameter,
                           message.longParameter);
}

std::optional<MessageAnswer> Component::hear(const Message& message) {
    if (message.code == WM_COMMAND) {
        if (const auto answer = hearChildCommand(message)) {
            return answer;
        }
    }
    if (message.code == WM_MOUSEMOVE && !tooltip_ && !description().empty()) {
        // Made when it is first wanted: most widgets never need theirs.
        tooltip_ = makeTooltip(handle(), description(), message);
    }
    return filter_ ? filter_(message) : std::nullopt;
}

MessageAnswer Component::forgetWindow(const Message& message) {
    tooltip_.reset();
    const MessageAnswer answer = sendToSystemClass(message);
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    window_.release();
    return answer;
}

}  // namespace calquo
