// The main menu's windows, made from its tree.
#include "shell/main_menu.h"

#include <string>

#include "shell/menu_tree.h"
#include "values/errors.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

MenuOwner makeMenu(const std::vector<MenuEntry>& entries) {
    MenuOwner menu(CreatePopupMenu());
    if (!menu) {
        raise(ErrorCode::InternalFault);
    }
    for (const MenuEntry& entry : entries) {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        if (entry.kind == MenuKind::Separator) {
            item.fMask = MIIM_FTYPE;
            item.fType = MFT_SEPARATOR;
        } else {
            item.fMask = MIIM_FTYPE | MIIM_STRING | MIIM_ID;
            item.fType = entry.kind == MenuKind::Radio ? MFT_STRING | MFT_RADIOCHECK : MFT_STRING;
            item.wID = entry.identifier;
        }
        std::wstring label = wideText(entry.label);
        item.dwTypeData = label.data();
        MenuOwner submenu;
        if (entry.kind == MenuKind::Submenu) {
            submenu = makeMenu(entry.children);
            item.fMask |= MIIM_SUBMENU;
            item.hSubMenu = submenu.get();
        }
        if (InsertMenuItemW(menu.get(), static_cast<UINT>(GetMenuItemCount(menu.get())), TRUE, &item) == 0) {
            raise(ErrorCode::InternalFault);
        }
        submenu.release();  // it belongs to the menu now
    }
    return menu;
}

void setMark(HMENU menu, std::uint16_t identifier, bool on) {
    CheckMenuItem(menu, identifier, static_cast<UINT>(MF_BYCOMMAND | (on ? MF_CHECKED : MF_UNCHECKED)));
}

void showMarksOf(const std::vector<MenuEntry>& entries, HMENU menu, const std::function<bool(std::uint16_t)>& isOn) {
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuKind::Check || entry.kind == MenuKind::Radio) {
            setMark(menu, entry.identifier, isOn(entry.identifier));
        }
        showMarksOf(entry.children, menu, isOn);
    }
}

/// Leaves the menu for a command of the window.
LRESULT leaveFor(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    EndMenu();
    PostMessageW(GetActiveWindow(), message, wParam, lParam);
    return 1;
}

/// Alt opens the menu as it goes down. When F4 or a blank follows, the user meant the window or the system's menu of
/// it; when Alt is held, it repeats itself, which would close the menu.
LRESULT CALLBACK onKeyInMenu(int code, WPARAM wParam, LPARAM lParam) {
    const MSG& message = *reinterpret_cast<const MSG*>(lParam);
    const bool isKey = code == MSGF_MENU && (message.message == WM_SYSKEYDOWN || message.message == WM_KEYDOWN);
    const bool isWithAlt = isKey && message.message == WM_SYSKEYDOWN;
    if (isWithAlt && message.wParam == VK_F4) {
        return leaveFor(WM_CLOSE);
    }
    if (isKey && message.wParam == VK_SPACE) {
        return leaveFor(WM_SYSCOMMAND, SC_KEYMENU, ' ');
    }
    if (isWithAlt && message.wParam == VK_MENU && (HIWORD(message.lParam) & KF_REPEAT) != 0) {
        return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void track(HMENU menu, HWND owner, Point corner) {
    const HHOOK hook = SetWindowsHookExW(WH_MSGFILTER, onKeyInMenu, nullptr, GetCurrentThreadId());
    TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, corner.left, corner.top, 0, owner, nullptr);
    UnhookWindowsHookEx(hook);
}

}  // namespace

MainMenu::MainMenu() : menu_(makeMenu(mainMenu())) {}

bool MainMenu::isChecked(std::uint16_t identifier) const {
    const UINT state = GetMenuState(menu_.get(), identifier, MF_BYCOMMAND);
    return state != static_cast<UINT>(-1) && (state & MF_CHECKED) != 0;
}

void MainMenu::setChecked(std::uint16_t identifier, bool on) { setMark(menu_.get(), identifier, on); }

void MainMenu::showMarks(const std::function<bool(std::uint16_t)>& isOn) { showMarksOf(mainMenu(), menu_.get(), isOn); }

void MainMenu::open(WindowHandle owner, Point corner) const { track(menu_.get(), owner, corner); }

void MainMenu::openSubmenu(std::size_t index, WindowHandle owner, Point corner) const {
    track(GetSubMenu(menu_.get(), static_cast<int>(index)), owner, corner);
}

}  // namespace calquo
