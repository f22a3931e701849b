// The dialog's window class, its messages and its place.
#include "dialogs/dialog_window.h"

#include "dialogs/form_layout.h"
#include "values/errors.h"
#include "widgets/kept_exception.h"
#include "widgets/screens.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr WindowStyle windowStyle{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                                  WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT};

}  // namespace

/// Leads the window's messages to the dialog.
struct DialogWindow::Procedure {
    static LRESULT CALLBACK receive(HWND window, UINT code, WPARAM wordParameter, LPARAM longParameter) {
        if (code == WM_NCCREATE) {
            const auto& creation = *reinterpret_cast<const CREATESTRUCTW*>(longParameter);
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation.lpCreateParams));
        }
        DialogWindow* const dialog = ownerOf(window);
        if (dialog != nullptr && code == WM_NCDESTROY) {
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            dialog->window_.release();
            dialog->forgetWidgets();
        } else if (dialog != nullptr) {
            const auto answer = keepingExceptions(std::optional<MessageAnswer>(0), [&] {
                return dialog->hear({code, wordParameter, longParameter});
            });
            if (answer) {
                return *answer;
            }
        }
        return DefWindowProcW(window, code, wordParameter, longParameter);
    }

    static DialogWindow* ownerOf(HWND window) {
        return reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    }

    static void registerClass(const wchar_t* name) {
        const HINSTANCE program = GetModuleHandleW(nullptr);
        WNDCLASSW description{};
        if (GetClassInfoW(program, name, &description) != 0) {
            return;
        }
        description.lpfnWndProc = receive;
        description.hInstance = program;
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
        description.lpszClassName = name;
        if (RegisterClassW(&description) == 0) {
            raise(ErrorCode::InternalFault);
        }
    }
};

WindowHandle DialogWindow::open(const Creation& creation) {
    if (!window_) {
        create(creation);
    }
    ShowWindow(handle(), SW_SHOW);
    BringWindowToTop(handle());
    SetForegroundWindow(handle());
    return handle();
}

void DialogWindow::create(const Creation& creation) {
    Procedure::registerClass(creation.windowClass);
    window_.reset(CreateWindowExW(windowStyle.extendedStyle, creation.windowClass, wideText(creation.title).c_str(),
                                  windowStyle.style, 0, 0, 0, 0, creation.owner, nullptr, GetModuleHandleW(nullptr),
                                  this));
    if (!window_) {
        raise(ErrorCode::InternalFault);
    }
    try {
        place(build(), creation.owner);
    } catch (...) {
        close();
        throw;
    }
}

void DialogWindow::place(Size client, WindowHandle owner) {
    const Rectangle window = windowAround(client, windowStyle);
    const Rectangle place =
        dialogRectangle({window.width, window.height}, windowRectangle(owner), screenOf(owner).usableArea);
    MoveWindow(handle(), place.left, place.top, place.width, place.height, FALSE);
}

void DialogWindow::close() {
    // The owner, which becomes active on the way, must already find the dialog closed.
    const WindowOwner closing(window_.release());
}

bool DialogWindow::takes(tagMSG& message) {
    const HWND top = GetAncestor(message.hwnd, GA_ROOT);
    const bool isDialog = GetClassLongPtrW(top, GCLP_WNDPROC) == reinterpret_cast<ULONG_PTR>(Procedure::receive);
    return isDialog && IsDialogMessageW(top, &message) != 0;
}

void DialogWindow::hearNotice(std::uint16_t, std::uint16_t) {}

std::optional<Color> DialogWindow::textColorOf(WindowHandle) const { return std::nullopt; }

std::optional<MessageAnswer> DialogWindow::hear(const Message& message) {
    switch (message.code) {
        case WM_COMMAND:
            return hearCommand(message);
        case WM_CLOSE:
            close();
            return 0;
        case WM_SETFOCUS:
            SetFocus(focused());
            return 0;
        case DM_GETDEFID:
            return MAKELONG(acceptCommand, DC_HASDEFID);
        case WM_NEXTDLGCTL:
            return moveFocus(message);
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
            return chooseTextColor(message);
        default:
            return std::nullopt;
    }
}

MessageAnswer DialogWindow::hearCommand(const Message& message) {
    static_assert(acceptCommand == IDOK && closeCommand == IDCANCEL);  // what Enter and Escape send
    switch (const std::uint16_t command = LOWORD(message.wordParameter)) {
        case acceptCommand:
            accept();
            break;
        case closeCommand:
            close();
            break;
        default:
            hearNotice(command, HIWORD(message.wordParameter));
    }
    return 0;
}

MessageAnswer DialogWindow::moveFocus(const Message& message) {
    const bool isGiven = LOWORD(message.longParameter) != 0;
    const HWND target = isGiven ? reinterpret_cast<HWND>(message.wordParameter)
                                : GetNextDlgTabItem(handle(), GetFocus(), message.wordParameter != 0 ? TRUE : FALSE);
    SetFocus(target);
    if ((SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        SendMessageW(target, EM_SETSEL, 0, -1);
    }
    return 0;
}

std::optional<MessageAnswer> DialogWindow::chooseTextColor(const Message& message) {
    const auto color = textColorOf(reinterpret_cast<HWND>(message.longParameter));
    if (!color) {
        return std::nullopt;
    }
    const LRESULT brush = DefWindowProcW(handle(), message.code, message.wordParameter, message.longParameter);
    SetTextColor(reinterpret_cast<HDC>(message.wordParameter), colorReference(*color));
    return brush;
}

}  // namespace calquo
