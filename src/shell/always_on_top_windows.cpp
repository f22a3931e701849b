// The entry of the system menu, its check mark, and the window's place above the others.
#include "shell/always_on_top.h"

#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The system uses the lowest four bits of a command in its menu, and the numbers from 0xF000 on.
constexpr std::uint16_t alwaysOnTop = 0x10;

}  // namespace

void addAlwaysOnTop(WindowHandle window) {
    const HMENU menu = GetSystemMenu(window, FALSE);
    InsertMenuW(menu, SC_CLOSE, MF_BYCOMMAND | MF_STRING, alwaysOnTop, L"Always on &Top");
    InsertMenuW(menu, SC_CLOSE, MF_BYCOMMAND | MF_SEPARATOR, 0, nullptr);
}

bool runAlwaysOnTop(WindowHandle window, std::uint16_t command) {
    constexpr std::uint16_t ownBits = 0xFFF0;
    if ((command & ownBits) != alwaysOnTop) {
        return false;
    }
    const bool isOn = (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    SetWindowPos(window, isOn ? HWND_NOTOPMOST : HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    CheckMenuItem(GetSystemMenu(window, FALSE), alwaysOnTop,
                  static_cast<UINT>(MF_BYCOMMAND | (isOn ? MF_UNCHECKED : MF_CHECKED)));
    return true;
}

}  // namespace calquo
