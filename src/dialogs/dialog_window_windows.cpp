// The dialog's window and its messages.
#include "dialogs/dialog_window.h"

#include "dialogs/form_layout.h"
#include "widgets/screens.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr WindowStyle windowStyle{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                                  WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT};

}  // namespace

WindowHandle DialogWindow::open(const Creation& creation) {
    if (handle() == nullptr) {
        create(creation);
    }
    ShowWindow(handle(), SW_SHOW);
    BringWindowToTop(handle());
    SetForegroundWindow(handle());
    return handle();
}

void DialogWindow::create(const Creation& creation) {
    WNDCLASSEXW description{};
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    description.lpszClassName = creation.windowClass;
    registerClass(description);
    Window::create({creation.windowClass, wideText(creation.title).c_str(), windowStyle, {}, creation.owner});
    try {
        moveOver(creation.owner);
    } catch (...) {
        close();
        throw;
    }
}

void DialogWindow::moveOver(WindowHandle owner) {
    const ScaleInForce scale(dotsPerInchOf(owner));
    const Rectangle frame = windowAround(build(), windowStyle, calquo::scale());
    const auto [left, top, width, height] =
        dialogRectangle({frame.width, frame.height}, windowRectangle(owner), screenOf(owner).usableArea);
    MoveWindow(handle(), left, top, width, height, FALSE);
}

bool DialogWindow::onScaleChanged(int dotsPerInch, const Rectangle& suggested) {
    const ScaleInForce scale(dotsPerInch);
    const Rectangle frame = windowAround(rebuild(), windowStyle, dotsPerInch);
    MoveWindow(handle(), suggested.left, suggested.top, frame.width, frame.height, TRUE);
    InvalidateRect(handle(), nullptr, TRUE);
    return true;
}

void DialogWindow::onSystemColors() {
    // Later, when the main window has taken the colours over: either may be told first.
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void DialogWindow::close() {
    // The owner, which becomes active on the way, must already find the dialog closed.
    const WindowOwner closing = release();
}

bool DialogWindow::takes(tagMSG& message) {
    const HWND top = GetAncestor(message.hwnd, GA_ROOT);
    return dynamic_cast<DialogWindow*>(Window::of(top)) != nullptr && IsDialogMessageW(top, &message) != 0;
}

bool DialogWindow::onClose() {
    close();
    return true;
}

bool DialogWindow::onCommand(const Notification& notification) {
    static_assert(acceptCommand == IDOK && closeCommand == IDCANCEL);  // what Enter and Escape send
    switch (notification.command) {
        case acceptCommand:
            accept();
            break;
        case closeCommand:
            close();
            break;
        default:
            onNotice(notification);
    }
    return true;
}

bool DialogWindow::onFocusMove(WindowHandle control, bool backwards) {
    const HWND target =
        control != nullptr ? control : GetNextDlgTabItem(handle(), GetFocus(), backwards ? TRUE : FALSE);
    SetFocus(target);
    if ((SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        SendMessageW(target, EM_SETSEL, 0, -1);
    }
    return true;
}

std::optional<std::intptr_t> DialogWindow::onSimpleMessage(std::uint32_t message) {
    return message == DM_GETDEFID ? std::optional<std::intptr_t>(MAKELONG(acceptCommand, DC_HASDEFID)) : std::nullopt;
}

}  // namespace calquo
