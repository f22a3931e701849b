// The window procedure, and the one place where the parameters of messages are taken apart.
#include "widgets/window.h"

#include <utility>

#include "values/errors.h"
#include "widgets/kept_exception.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

std::optional<std::intptr_t> dealtWith(bool yes) { return yes ? std::optional<std::intptr_t>(0) : std::nullopt; }

/// Whether a message means something to windows of one class alone.
bool isOfOneClass(UINT code) {
    constexpr UINT firstRegistered = 0xC000;  // from here on messages have names that programs agree on
    return code >= WM_USER && code < firstRegistered;
}

bool isHeld(int key) { return GetKeyState(key) < 0; }

Activation activationOf(WPARAM wParam) {
    switch (LOWORD(wParam)) {
        case WA_INACTIVE:
            return Activation::Inactive;
        case WA_CLICKACTIVE:
            return Activation::ByClick;
        default:
            return Activation::Active;
    }
}

/// Whether the window's menu is wanted by its key alone, rather than by the letter of an entry.
bool isMenuKey(WPARAM command, LPARAM letter) {
    constexpr WPARAM innerBits = 0xF;  // the system's own use of the low bits
    return (command & ~innerBits) == SC_KEYMENU && letter == 0;
}

}  // namespace

/// A message as the system passes it.
struct Window::Message {
    HWND window;
    UINT code;
    WPARAM wParam;
    LPARAM lParam;
};

struct Window::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wParam, LPARAM lParam) {
        Window* const owner = code == WM_NCCREATE ? adopt(window, lParam) : ownerOf(window);
        if (owner == nullptr) {
            return DefWindowProcW(window, code, wParam, lParam);
        }
        const Message message{window, code, wParam, lParam};
        if (code == WM_NCDESTROY) {
            return owner->forget(message);
        }
        // A message that a window failed at counts as dealt with, and a creation as refused.
        bool failed = true;
        const auto result = keepingExceptions(Result(code == WM_CREATE ? -1 : 0), [&] {
            const Result answer = owner->dispatch(message);
            failed = false;
            return answer;
        });
        if (failed && code == WM_PAINT) {
            ValidateRect(window, nullptr);  // or the system would ask for the same again, without end
        }
        return result ? *result : owner->passToClass(message);
    }

    static Window* ownerOf(HWND window) { return reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA)); }

    /// Ties the window to the object that is creating it.
    static Window* adopt(HWND window, LPARAM creation) {
        auto* const owner = static_cast<Window*>(reinterpret_cast<const CREATESTRUCTW*>(creation)->lpCreateParams);
        if (owner != nullptr) {
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
            owner->window_ = WindowOwner(window);
        }
        return owner;
    }
};

void Window::registerClass(tagWNDCLASSEXW& description) {
    description.cbSize = sizeof description;
    description.lpfnWndProc = Procedure::receive;
    description.hInstance = GetModuleHandleW(nullptr);
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    const bool isKnown = GetClassInfoExW(description.hInstance, description.lpszClassName, &known) != 0;
    if (isKnown && known.lpfnWndProc == Procedure::receive) {
        return;
    }
    if (RegisterClassExW(&description) == 0) {
        raise(ErrorCode::InternalFault);
    }
}

void Window::create(const Creation& creation) {
    const HMENU identifier = reinterpret_cast<HMENU>(static_cast<std::uintptr_t>(creation.command));
    const auto [left, top, width, height] = creation.rectangle;
    const HWND created =
        CreateWindowExW(creation.style.extendedStyle, creation.windowClass, creation.title, creation.style.style, left,
                        top, width, height, creation.parent, identifier, GetModuleHandleW(nullptr), this);
    if (created == nullptr) {
        window_.release();
        rethrowKeptException();
        raise(ErrorCode::InternalFault);
    }
}

void Window::destroy() {
    // The last messages still need the handle; the final one gives it up.
    if (window_) {
        destroyWindow(handle());
    }
}

WindowOwner Window::detach() {
    const auto procedure = systemProcedure_ == nullptr ? DefWindowProcW : reinterpret_cast<WNDPROC>(systemProcedure_);
    SetWindowLongPtrW(handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    return WindowOwner(window_.release());
}

void Window::attach(WindowOwner window) {
    window_ = std::move(window);
    SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure::receive));
}

Window* Window::of(WindowHandle window) {
    const ULONG_PTR procedure = GetClassLongPtrW(window, GCLP_WNDPROC);
    const bool isOurs = procedure == reinterpret_cast<ULONG_PTR>(Procedure::receive);
    return isOurs ? Procedure::ownerOf(window) : nullptr;
}

void Window::sendCommand(WindowHandle receiver, const Notification& notification) {
    SendMessageW(receiver, WM_COMMAND, MAKEWPARAM(notification.command, notification.code),
                 reinterpret_cast<LPARAM>(notification.control));
}

void Window::passToTopLevel(const KeyEvent& event) const {
    if (Window* const topLevel = of(GetAncestor(handle(), GA_ROOT))) {
        topLevel->onKey(event);
    }
}

std::intptr_t Window::passToClass(const Message& message) const {
    const auto procedure = systemProcedure_ == nullptr ? DefWindowProcW : reinterpret_cast<WNDPROC>(systemProcedure_);
    return CallWindowProcW(procedure, message.window, message.code, message.wParam, message.lParam);
}

std::intptr_t Window::forget(const Message& message) {
    onGone();
    const std::intptr_t result = passToClass(message);
    SetWindowLongPtrW(message.window, GWLP_USERDATA, 0);
    window_.release();
    return result;
}

// --- Messages -------------------------------------------------------------------------------------------------------

Window::Result Window::dispatch(const Message& message) {
    for (const auto part :
         {&Window::dispatchLife, &Window::dispatchPlacement, &Window::dispatchInput, &Window::dispatchPainting}) {
        if (const Result result = (this->*part)(message)) {
            return result;
        }
    }
    return std::nullopt;
}

Window::Result Window::dispatchLife(const Message& message) {
    switch (message.code) {
        case WM_CREATE:
            onCreate();
            return std::nullopt;
        case WM_DESTROY:
            onDestroy();
            return std::nullopt;
        case WM_GETOBJECT:
            if (static_cast<LONG>(message.lParam) == OBJID_CLIENT) {
                onDescriptionWanted();
            }
            return std::nullopt;
        case WM_CLOSE:
            return dealtWith(onClose());
        case WM_QUERYENDSESSION:
            return maySessionEnd((message.lParam & ENDSESSION_CRITICAL) != 0) ? 1 : 0;
        case WM_ENDSESSION:
            onSessionEnd(message.wParam != 0);
            return 0;
        default:
            return std::nullopt;
    }
}

Window::Result Window::dispatchPlacement(const Message& message) {
    switch (message.code) {
        case WM_WINDOWPOSCHANGING:
            return takePlace(message);
        case WM_WINDOWPOSCHANGED:
            return dealtWith(onMoved());
        case WM_DPICHANGED:
            return dealtWith(
                onScaleChanged(HIWORD(message.wParam), rectangleOf(*reinterpret_cast<const RECT*>(message.lParam))));
        case WM_GETMINMAXINFO:
            return takeSizeLimits(message);
        case WM_NCHITTEST:
            return static_cast<std::intptr_t>(onHitTest(static_cast<HitArea>(passToClass(message))));
        case WM_ACTIVATE:
            onActivation(activationOf(message.wParam));
            return std::nullopt;
        case WM_SETFOCUS: {
            const HWND target = focusTarget();
            if (target != nullptr) {
                SetFocus(target);
            }
            return dealtWith(target != nullptr);
        }
        case WM_NEXTDLGCTL: {
            const bool isGiven = LOWORD(message.lParam) != 0;
            return dealtWith(onFocusMove(isGiven ? reinterpret_cast<HWND>(message.wParam) : nullptr,
                                         !isGiven && message.wParam != 0));
        }
        default:
            return std::nullopt;
    }
}

Window::Result Window::dispatchInput(const Message& message) {
    switch (message.code) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
            return takeKey(message);
        case WM_CHAR:
        case WM_SYSCHAR:
            return dealtWith(onCharacter(static_cast<wchar_t>(message.wParam)));
        case WM_SYSCOMMAND:
            return takeSystemCommand(message);
        case WM_MOUSEMOVE:
            return takeMouse(MouseAction::Move, message);
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:  // the second of two quick presses
            return takeMouse(MouseAction::Press, message);
        case WM_LBUTTONUP:
            return takeMouse(MouseAction::Release, message);
        case WM_CAPTURECHANGED:
            return takeMouse(MouseAction::CaptureLost, message);
        case WM_MOUSEWHEEL:
            return takeWheel(message);
        case WM_RBUTTONUP:
        case WM_CONTEXTMENU:
            return takeContextMenu(message);
        case WM_PARENTNOTIFY:
            if (LOWORD(message.wParam) != WM_CREATE && LOWORD(message.wParam) != WM_DESTROY) {
                onPressInside();
            }
            return std::nullopt;
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
            onPressInside();
            return std::nullopt;
        case WM_TIMER:
            return dealtWith(onTimer(message.wParam));
        case WM_COMMAND:
            return dealtWith(
                onCommand({LOWORD(message.wParam), HIWORD(message.wParam), reinterpret_cast<HWND>(message.lParam)}));
        case WM_DROPFILES:
            return dealtWith(onFilesDropped(message.wParam));
        case WM_GETDLGCODE:
        case WM_KILLFOCUS:
        case WM_UNDO:
        case EM_UNDO:
        case WM_PASTE:
        case WM_IME_STARTCOMPOSITION:
            return onSimpleMessage(message.code);
        default:
            return isOfOneClass(message.code) ? onSimpleMessage(message.code) : std::nullopt;
    }
}

Window::Result Window::dispatchPainting(const Message& message) {
    switch (message.code) {
        case WM_PAINT:
            return dealtWith(onPaint());
        case WM_ERASEBKGND:
            return onPaintBackground(reinterpret_cast<HDC>(message.wParam)) ? Result(1) : std::nullopt;
        case WM_NCPAINT:
            return dealtWith(onPaintFrame());
        case WM_DRAWITEM:
            return takeDrawing(message);
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLOREDIT:
            return colorsOfChild(message);
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
        case WM_THEMECHANGED:
            onSystemColors();
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

Window::Result Window::takeKey(const Message& message) {
    KeyEvent event;
    event.key = static_cast<std::uint32_t>(message.wParam);
    event.released = message.code == WM_SYSKEYUP;
    event.repeated = !event.released && (HIWORD(message.lParam) & KF_REPEAT) != 0;
    event.system = message.code != WM_KEYDOWN;
    event.shift = isHeld(VK_SHIFT);
    event.control = isHeld(VK_CONTROL);
    event.alt = isHeld(VK_MENU);
    return dealtWith(onKey(event));
}

Window::Result Window::takeSystemCommand(const Message& message) {
    constexpr WPARAM firstOfSystem = 0xF000;
    return dealtWith(message.wParam < firstOfSystem ? onSystemMenu(LOWORD(message.wParam))
                                                    : isMenuKey(message.wParam, message.lParam) && onMenuKey());
}

Window::Result Window::takeMouse(MouseAction action, const Message& message) {
    const Point position{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    return dealtWith(onMouse({action, position}));
}

Window::Result Window::takeWheel(const Message& message) const {
    // The focus, to which many systems send the wheel, says nothing of what it is turned over.
    Window* const topLevel = of(GetAncestor(handle(), GA_ROOT));
    const Point position{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    const int delta = static_cast<short>(HIWORD(message.wParam));
    return dealtWith(topLevel != nullptr && topLevel->onWheel({position, delta}));
}

Window::Result Window::takeContextMenu(const Message& message) {
    // Some controls keep the release of the button to themselves, and the menu's message never comes.
    POINT point{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    if (message.code == WM_RBUTTONUP) {
        ClientToScreen(message.window, &point);
    } else if (message.lParam == -1) {
        return dealtWith(onContextMenu(std::nullopt));
    }
    return dealtWith(onContextMenu(Point{point.x, point.y}));
}

Window::Result Window::takePlace(const Message& message) {
    auto& place = *reinterpret_cast<WINDOWPOS*>(message.lParam);
    if ((place.flags & (SWP_NOMOVE | SWP_NOSIZE)) != 0) {
        return std::nullopt;
    }
    Rectangle rectangle{place.x, place.y, place.cx, place.cy};
    if (!onPlacing(rectangle)) {
        return std::nullopt;
    }
    place.x = rectangle.left;
    place.y = rectangle.top;
    place.cx = rectangle.width;
    place.cy = rectangle.height;
    return 0;
}

Window::Result Window::takeSizeLimits(const Message& message) const {
    const std::optional<SizeLimits> limits = sizeLimits();
    if (!limits) {
        return std::nullopt;
    }
    auto& wanted = *reinterpret_cast<MINMAXINFO*>(message.lParam);
    const auto [left, top, width, height] = limits->maximized;
    wanted.ptMaxPosition = {left, top};
    wanted.ptMaxSize = {width, height};
    wanted.ptMaxTrackSize = wanted.ptMaxSize;
    if (limits->smallest) {
        wanted.ptMinTrackSize = {limits->smallest->width, limits->smallest->height};
    }
    return 0;
}

Window::Result Window::takeDrawing(const Message& message) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
    const bool drawn = onDrawChild(item.hwndItem, item.hDC, {item.rcItem.right, item.rcItem.bottom});
    return drawn ? Result(TRUE) : std::nullopt;
}

Window::Result Window::colorsOfChild(const Message& message) const {
    const HDC context = reinterpret_cast<HDC>(message.wParam);
    const HWND child = reinterpret_cast<HWND>(message.lParam);
    const std::optional<Color> text = textColorOf(child);
    const std::optional<Color> background = backgroundOf(child);
    if (!text && !background) {
        return std::nullopt;
    }
    std::intptr_t brush = 0;
    if (background) {
        SetDCBrushColor(context, colorReference(*background));
        brush = reinterpret_cast<std::intptr_t>(GetStockObject(DC_BRUSH));
    } else {
        brush = passToClass(message);
    }
    if (text) {
        SetTextColor(context, colorReference(*text));
    }
    return brush;
}

}  // namespace calquo
