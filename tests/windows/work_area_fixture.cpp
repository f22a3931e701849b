// The fixture's window, keys and pictures.
#include "work_area_fixture.h"

#include <algorithm>
#include <cwchar>

#include "held_key.h"
#include "widgets/kept_exception.h"

namespace calquo {
namespace {

constexpr wchar_t className[] = L"Window of a test";

LRESULT CALLBACK receive(HWND window, UINT code, WPARAM first, LPARAM second) {
    auto* const commands = reinterpret_cast<std::vector<unsigned>*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (code == WM_COMMAND && second == 0 && commands != nullptr) {
        commands->push_back(LOWORD(first));
    }
    return DefWindowProcW(window, code, first, second);
}

/// 'n' for the normal style, 'r' for the result style, '?' for any other: of another size, italic, hidden and so on.
char styleOfSelection(HWND control) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(control, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    constexpr LONG twelvePoints = 240;
    // The system's own colour of text is black, too.
    const DWORD effects = format.dwEffects & CFM_EFFECTS2 & ~static_cast<DWORD>(CFE_BOLD | CFE_AUTOCOLOR);
    if (effects != CFE_AUTOBACKCOLOR || format.yHeight != twelvePoints ||
        std::wcscmp(format.szFaceName, L"Arial") == 0) {
        return '?';
    }
    const bool bold = (format.dwEffects & CFE_BOLD) != 0;
    const bool isBlack = (format.dwEffects & CFE_AUTOCOLOR) != 0 || format.crTextColor == RGB(0, 0, 0);
    if (!bold && isBlack) {
        return 'n';
    }
    return bold && format.crTextColor == RGB(0, 0, 139) ? 'r' : '?';
}

}  // namespace

std::wstring wide(std::string_view text) {
    std::wstring units;
    for (const char character : text) {
        units += static_cast<unsigned char>(character);
    }
    return units;
}

WorkAreaFixture::TopLevelWindow::TopLevelWindow(WorkAreaFixture& fixture) {
    WNDCLASSW description{};
    description.lpfnWndProc = receive;
    description.lpszClassName = className;
    RegisterClassW(&description);
    handle = CreateWindowExW(0, className, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr,
                             nullptr, nullptr);
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&fixture.commands));
}

WorkAreaFixture::TopLevelWindow::~TopLevelWindow() { DestroyWindow(handle); }

WorkAreaFixture::WorkAreaFixture()
    : top_(*this),
      workArea_(
          top_.handle, 1, {{VK_F1, Modifiers::Any, 2592}}, [this] { return format; },
          WorkAreaListener{.refused = [this](const std::wstring&) { ++refusals; }}) {
    workArea_.moveTo({0, 0, 780, 560});
    workArea_.giveFocus();
}

void WorkAreaFixture::type(std::wstring_view text) {
    for (const wchar_t unit : text) {
        if (unit == L'\n') {
            press(VK_RETURN, VK_CONTROL);
        } else {
            SendMessageW(control(), WM_CHAR, unit, 1);
        }
    }
}

void WorkAreaFixture::press(int key, int modifier) {
    const HeldKey held(modifier);
    const bool alt = modifier == VK_MENU;
    SendMessageW(control(), alt ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    const wchar_t character = modifier == VK_CONTROL ? L'\n' : L'\r';
    if (key == VK_RETURN) {
        SendMessageW(control(), alt ? WM_SYSCHAR : WM_CHAR, character, 1);
    }
    SendMessageW(control(), alt ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(key), 1);
    rethrowKeptException();
}

void WorkAreaFixture::select(std::size_t begin, std::size_t end) {
    SendMessageW(control(), EM_SETSEL, begin, static_cast<LPARAM>(end));
}

void WorkAreaFixture::undo() { SendMessageW(control(), EM_UNDO, 0, 0); }

void WorkAreaFixture::redo() { SendMessageW(control(), EM_REDO, 0, 0); }

std::wstring WorkAreaFixture::text() const {
    std::wstring units(static_cast<std::size_t>(SendMessageW(control(), WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(control(), WM_GETTEXT, units.size(), reinterpret_cast<LPARAM>(units.data()));
    units.resize(static_cast<std::size_t>(length));
    std::erase(units, L'\r');
    return units;
}

std::size_t WorkAreaFixture::caret() const {
    CHARRANGE range{};
    SendMessageW(control(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return static_cast<std::size_t>(range.cpMax);
}

std::wstring WorkAreaFixture::picture() {
    const std::wstring units = text();
    const std::size_t place = caret();
    std::wstring drawn;
    bool result = false;
    for (std::size_t index = 0; index <= units.size(); ++index) {
        select(index, index + 1);
        const char style = index < units.size() ? styleOfSelection(control()) : 'n';
        if (result && style != 'r') {
            drawn += L'>';
        }
        if (index == place) {
            drawn += L'|';
        }
        if (!result && style == 'r') {
            drawn += L'<';
        }
        result = style == 'r';
        if (index < units.size()) {
            drawn += units[index];
        }
        if (style == '?') {
            drawn += L'?';
        }
    }
    select(place, place);
    return drawn;
}

}  // namespace calquo
