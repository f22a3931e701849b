// read_work_area: prints the text in the work area of the running Calquo as UTF-8 with "\n" at line ends; with the
// argument --window, what its window shows, a fact on each line; with --serve, it waits for what each line of its input
// expects. Exit status 1 when no Calquo runs.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "values/program.h"
#include "widgets/windows_api.h"

namespace {

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(3 * text.size(), '\0');
    const int count = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                          nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(count));
    std::erase(bytes, '\r');
    return bytes;
}

BOOL CALLBACK listWindow(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

/// Whether a child window is on the screen; a hidden panel has a place without a size.
bool isShown(HWND child) {
    RECT place{};
    GetWindowRect(child, &place);
    return IsWindowVisible(child) != 0 && IsRectEmpty(&place) == 0;
}

std::string classOf(HWND window) {
    char name[100] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

/// The visible top-level windows of a class, in every program.
int countShown(const char* className) {
    std::vector<HWND> windows;
    EnumWindows(listWindow, reinterpret_cast<LPARAM>(&windows));
    return static_cast<int>(std::count_if(windows.begin(), windows.end(), [&](HWND window) {
        return IsWindowVisible(window) != 0 && classOf(window) == className;
    }));
}

const char* stateOf(HWND window) {
    if (IsIconic(window) != 0) {
        return "minimized";
    }
    return IsZoomed(window) != 0 ? "maximized" : "normal";
}

// --- Waiting for what is expected -----------------------------------------------------------------------------------

/// The text on one line, with "|" at the caret, or "[" and "]" around the selection, where `marked` says so.
std::string drawnSheet(HWND workArea, bool marked) {
    std::wstring text = textOf(workArea);
    std::erase(text, L'\r');
    if (marked) {
        const auto selection = static_cast<DWORD>(SendMessageW(workArea, EM_GETSEL, 0, 0));
        const std::size_t begin = LOWORD(selection), end = HIWORD(selection);
        text.insert(std::min(end, text.size()), begin == end ? L"|" : L"]");
        text.insert(std::min(begin, text.size()), begin == end ? L"" : L"[");
    }
    std::string drawn;
    for (const char byte : utf8(text)) {
        drawn += byte == '\n' ? "\\n" : byte == '\t' ? "\\t" : std::string(1, byte);
    }
    return drawn;
}

/// The hint below the sheet, or the tip beside a line; empty where neither shows.
std::string hintOf(HWND window) {
    for (const char* name : {"CalquoHint", "CalquoTip"}) {
        const HWND hint = FindWindowExA(window, nullptr, name, nullptr);
        if (hint != nullptr && IsWindowVisible(hint) != 0) {
            return utf8(textOf(hint));
        }
    }
    return "";
}

/// What a line of the input expects: the sheet as drawnSheet() has it, and after " ??" a part of the hint, or nothing
/// for none. A sheet without a caret or a selection may have them anywhere.
struct Expectation {
    std::string sheet, hint;
    bool tellsOfHint = false;

    explicit Expectation(const std::string& line) : sheet(line) {
        constexpr char mark[] = " ??";
        const std::size_t place = line.find(mark);
        if (place != std::string::npos) {
            tellsOfHint = true;
            sheet.resize(place);
            hint = line.substr(std::min(line.size(), place + sizeof mark));
        }
    }
    bool isMarked() const { return sheet.find_first_of("|[") != std::string::npos; }
};

/// "ok" as soon as the window shows what is expected and goes on to do so, or what it shows after five seconds.
std::string waitFor(const Expectation& expected) {
    constexpr int step = 10, patience = 5000, calm = 4 * step;  // milliseconds
    int shown = 0;
    std::string sheet, hint;
    for (int waited = 0; waited < patience; waited += step) {
        const HWND window = FindWindowA(calquo::programTitle, nullptr);
        sheet = drawnSheet(FindWindowExA(window, nullptr, "RichEdit20A", nullptr), expected.isMarked());
        hint = hintOf(window);
        const bool hints = expected.hint.empty() ? hint.empty() : hint.find(expected.hint) != std::string::npos;
        shown = sheet == expected.sheet && (hints || !expected.tellsOfHint) ? shown + step : 0;
        if (shown >= calm) {
            return "ok";
        }
        Sleep(step);
    }
    return sheet + " ?? " + hint;
}

int serve() {
    for (std::string line; std::getline(std::cin, line);) {
        std::cout << waitFor(Expectation(line)) << std::endl;
    }
    return 0;
}

// --- The window -----------------------------------------------------------------------------------------------------

/// What has the keyboard's focus in the program: the work area, or a window's class.
std::string focusOf(HWND window, HWND workArea) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
    if (thread.hwndFocus == workArea) {
        return "work area";
    }
    return thread.hwndFocus == nullptr ? "nothing" : classOf(thread.hwndFocus);
}

/// The visible windows of a panel's buttons with the middle of each on the screen; the number is the button's place
/// in the panel, from 1.
void printButtons(HWND panel) {
    const int identifier = GetDlgCtrlID(panel);
    std::vector<HWND> inside;
    EnumChildWindows(panel, listWindow, reinterpret_cast<LPARAM>(&inside));
    for (const HWND button : inside) {
        if (isShown(button) && GetWindow(button, GW_CHILD) == nullptr) {
            RECT place{};
            GetWindowRect(button, &place);
            std::printf("button %04X %d %ld %ld %s\n", static_cast<unsigned>(identifier), GetDlgCtrlID(button),
                        (place.left + place.right) / 2, (place.top + place.bottom) / 2, utf8(textOf(button)).c_str());
        }
    }
}

void printWindow(HWND window, HWND workArea) {
    RECT place{};
    GetWindowRect(window, &place);
    std::printf("windows %d\n", countShown(calquo::programTitle));
    std::printf("place %ld %ld %ld %ld\n", place.left, place.top, place.right, place.bottom);
    GetWindowRect(workArea, &place);
    std::printf("sheet %ld %ld\n", place.left, place.top);
    std::printf("state %s\n", stateOf(window));
    std::printf("front %s\n", GetForegroundWindow() == window ? "yes" : "no");
    std::printf("focus %s\n", focusOf(window, workArea).c_str());
    std::printf("menus %d\n", countShown("#32768"));
    std::printf("hint %s\n", hintOf(window).c_str());
    std::vector<HWND> parts;
    EnumChildWindows(window, listWindow, reinterpret_cast<LPARAM>(&parts));
    for (const HWND part : parts) {
        if (isShown(part) && classOf(part) == "CalquoTip") {
            GetWindowRect(part, &place);
            std::printf("tip %ld %ld %ld %ld\n", place.left, place.top, place.right, place.bottom);
        } else if (isShown(part) && classOf(part) == "CalquoPanel" && GetDlgCtrlID(part) != 0) {
            // Rows and the column, too, are panels, but no command is theirs.
            std::printf("panel %04X\n", static_cast<unsigned>(GetDlgCtrlID(part)));
            printButtons(part);
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    if (count > 1 && std::strcmp(arguments[1], "--serve") == 0) {
        return serve();
    }
    const HWND window = FindWindowA(calquo::programTitle, nullptr);
    const HWND workArea = FindWindowExA(window, nullptr, "RichEdit20A", nullptr);
    if (window == nullptr || workArea == nullptr) {
        return 1;
    }
    if (count > 1 && std::strcmp(arguments[1], "--window") == 0) {
        printWindow(window, workArea);
        return 0;
    }
    const std::string text = utf8(textOf(workArea));
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 2;
}
