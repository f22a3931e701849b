// The main window's parts as the system shows them.
#include "program.h"

#include <algorithm>

#include "dialogs/dialog_window.h"
#include "held_key.h"
#include "widgets/kept_exception.h"

namespace calquo {
namespace {

BOOL CALLBACK noteButton(HWND window, LPARAM list) {
    if (GetWindow(window, GW_CHILD) == nullptr) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

struct Search {
    int identifier;
    HWND found = nullptr;
};

BOOL CALLBACK find(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    const bool isIt = GetDlgCtrlID(window) == search.identifier;
    search.found = isIt ? window : nullptr;
    return isIt ? FALSE : TRUE;
}

LRESULT CALLBACK closeMenu(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && reinterpret_cast<const CWPSTRUCT*>(lParam)->message == WM_INITMENUPOPUP) {
        ++Program::menusOpened;
        EndMenu();
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

Program::Program(MemoryStorage stored, UserDialogs dialogs, StartFiles files)
    : storage_(std::move(stored)), settings_(storage_) {
    settings_.loadAll();
    window_.emplace(settings_, std::move(dialogs), std::move(files));
    serveMessages();
}

HWND Program::workArea() const { return FindWindowExW(handle(), nullptr, L"RichEdit20A", nullptr); }

std::wstring Program::text() const {
    GETTEXTLENGTHEX measure{GTL_NUMCHARS | GTL_PRECISE, 1200};
    const LRESULT length = SendMessageW(workArea(), EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0);
    std::wstring characters(static_cast<std::size_t>(length), L'\0');
    TEXTRANGEW all{{0, static_cast<LONG>(length)}, characters.data()};
    SendMessageW(workArea(), EM_GETTEXTRANGE, 0, reinterpret_cast<LPARAM>(&all));
    std::replace(characters.begin(), characters.end(), L'\r', L'\n');
    return characters;
}

void Program::setText(std::wstring_view text) {
    SendMessageW(workArea(), EM_SETSEL, 0, -1);
    SendMessageW(workArea(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
}

void Program::select(std::size_t begin, std::size_t end) {
    CHARRANGE range{static_cast<LONG>(begin), static_cast<LONG>(end)};
    SendMessageW(workArea(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

std::size_t Program::caret() const {
    CHARRANGE range{};
    SendMessageW(workArea(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return static_cast<std::size_t>(range.cpMax);
}

void Program::command(unsigned identifier) {
    SendMessageW(handle(), WM_COMMAND, identifier, 0);
    serveMessages();
}

HWND Program::child(unsigned identifier) const {
    Search search{static_cast<int>(identifier)};
    EnumChildWindows(handle(), find, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> Program::buttonsOf(unsigned panel) const {
    std::vector<HWND> buttons;
    EnumChildWindows(child(panel), noteButton, reinterpret_cast<LPARAM>(&buttons));
    // The system lists the siblings from the uppermost down, which says nothing of their places.
    const auto before = [this](HWND first, HWND second) {
        const RECT one = placeOf(first), other = placeOf(second);
        return one.top != other.top ? one.top < other.top : one.left < other.left;
    };
    std::sort(buttons.begin(), buttons.end(), before);
    return buttons;
}

void Program::click(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    const LPARAM middle = MAKELPARAM(area.right / 2, area.bottom / 2);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    SendMessageW(window, WM_LBUTTONUP, 0, middle);
    serveMessages();
}

void Program::press(HWND window, UINT message, WPARAM key, LPARAM details, int held) {
    const HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, closeMenu, nullptr, GetCurrentThreadId());
    {
        const HeldKey holding(held);
        SendMessageW(window, message, key, details);
    }
    UnhookWindowsHookEx(hook);
    serveMessages();
}

RECT Program::placeOf(HWND child) const {
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

RECT Program::client() const {
    RECT area{};
    GetClientRect(handle(), &area);
    return area;
}

void Program::serveMessages() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0 && message.message != WM_QUIT) {
        if (!DialogWindow::takes(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        rethrowKeptException();
    }
    rethrowKeptException();  // of what was sent before
}

void Program::close() {
    SendMessageW(handle(), WM_CLOSE, 0, 0);
    serveMessages();
}

}  // namespace calquo
