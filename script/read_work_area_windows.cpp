// read_work_area: prints the text in the work area of the running Calquo as UTF-8 with "\n" at line ends; with the
// argument --window, what its window shows, a fact on each line; with --serve, it answers each line of its input, which
// asks for a fact or waits for what it expects. Exit status 1 when no Calquo runs.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "values/program.h"
#include "widgets/windows_api.h"

namespace {

using Clock = std::chrono::steady_clock;

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

// --- What the window shows ------------------------------------------------------------------------------------------

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

std::string hexadecimal(int identifier) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%04X", static_cast<unsigned>(identifier));
    return digits;
}

/// The edges of a window on the screen: left, top, right and bottom.
std::string placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return std::to_string(place.left) + ' ' + std::to_string(place.top) + ' ' + std::to_string(place.right) + ' ' +
           std::to_string(place.bottom);
}

using Facts = std::vector<std::string>;

/// Adds "button PANEL NUMBER X Y LABEL" for each visible button of a panel: its place in the panel, from 1, and its
/// middle on the screen.
void addButtons(HWND panel, Facts& facts) {
    std::vector<HWND> inside;
    EnumChildWindows(panel, listWindow, reinterpret_cast<LPARAM>(&inside));
    for (const HWND button : inside) {
        if (isShown(button) && GetWindow(button, GW_CHILD) == nullptr) {
            RECT place{};
            GetWindowRect(button, &place);
            facts.push_back("button " + hexadecimal(GetDlgCtrlID(panel)) + ' ' + std::to_string(GetDlgCtrlID(button)) +
                            ' ' + std::to_string((place.left + place.right) / 2) + ' ' +
                            std::to_string((place.top + place.bottom) / 2) + ' ' + utf8(textOf(button)));
        }
    }
}

/// All that a window shows, each fact a name and its value; the buttons of the panels alone that are named, or of all:
/// to ask hundreds takes a second.
Facts factsOf(HWND window, const std::string& panelsOfButtons) {
    const HWND workArea = FindWindowExA(window, nullptr, "RichEdit20A", nullptr);
    Facts facts{"windows " + std::to_string(countShown(calquo::programTitle)),
                "place " + placeOf(window),
                "sheet " + placeOf(workArea),
                std::string("state ") + stateOf(window),
                std::string("front ") + (GetForegroundWindow() == window ? "yes" : "no"),
                "focus " + focusOf(window, workArea),
                "menus " + std::to_string(countShown("#32768")),
                "hint " + hintOf(window)};
    std::vector<HWND> parts;
    EnumChildWindows(window, listWindow, reinterpret_cast<LPARAM>(&parts));
    std::string panels = "panels";
    for (const HWND part : parts) {
        if (isShown(part) && classOf(part) == "CalquoTip") {
            facts.push_back("tip " + placeOf(part));
        } else if (isShown(part) && classOf(part) == "CalquoPanel" && GetDlgCtrlID(part) != 0) {
            // Rows and the column, too, are panels, but no command is theirs.
            const std::string panel = hexadecimal(GetDlgCtrlID(part));
            panels += ' ' + panel;
            if (panelsOfButtons == "all" || panelsOfButtons.find(panel) != std::string::npos) {
                addButtons(part, facts);
            }
        }
    }
    facts.push_back(panels);
    return facts;
}

// --- Waiting for what is expected -----------------------------------------------------------------------------------

/// Text on one line.
std::string drawn(const std::string& text) {
    std::string line;
    for (const char byte : text) {
        line += byte == '\n' ? "\\n" : byte == '\t' ? "\\t" : byte == '\r' ? "\\r" : std::string(1, byte);
    }
    return line;
}

/// The sheet on one line, with "|" at the caret, or "[" and "]" around the selection, where `marked` says so.
std::string drawnSheet(HWND workArea, bool marked) {
    std::wstring text = textOf(workArea);
    std::erase(text, L'\r');
    if (marked) {
        const auto selection = static_cast<DWORD>(SendMessageW(workArea, EM_GETSEL, 0, 0));
        const std::size_t begin = LOWORD(selection), end = HIWORD(selection);
        text.insert(std::min(end, text.size()), begin == end ? L"|" : L"]");
        text.insert(std::min(begin, text.size()), begin == end ? L"" : L"[");
    }
    return drawn(utf8(text));
}

std::vector<std::string> wordsOf(const std::string& line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Whether a fact is what a pattern says, word by word: "*" stands for any word, and at the end for all that follow;
/// "@" is the number that was kept, "@+3" and "@-3" so much more or less, "@<" a smaller one.
bool isAs(const std::string& pattern, const std::string& fact, const Facts& kept) {
    const std::vector<std::string> wanted = wordsOf(pattern), words = wordsOf(fact);
    if (wanted.size() != words.size() && (wanted.back() != "*" || wanted.size() > words.size())) {
        return false;
    }
    const auto isRelative = [](const std::string& word) { return word[0] == '@'; };
    std::vector<std::string> before;
    for (const std::string& old : kept) {
        const std::vector<std::string> oldWords = wordsOf(old);
        bool same = oldWords.size() == words.size();
        for (std::size_t place = 0; same && place < wanted.size(); ++place) {
            same = isRelative(wanted[place]) || oldWords[place] == words[place];
        }
        before = same ? oldWords : before;
    }
    for (std::size_t place = 0; place < wanted.size(); ++place) {
        const std::string& word = wanted[place];
        const auto number = [&](const std::vector<std::string>& from) { return std::atoi(from[place].c_str()); };
        if (isRelative(word) && before.empty()) {
            return false;
        }
        const bool fits = word == "*"        ? true
                          : word == "@<"     ? number(words) < number(before)
                          : isRelative(word) ? number(words) == number(before) + std::atoi(word.c_str() + 1)
                                             : word == words[place];
        if (!fits) {
            return false;
        }
    }
    return true;
}

/// Whether a text is what a pattern says, of which a "*" at the end stands for the rest.
bool isText(const std::string& pattern, const std::string& text) {
    return pattern.ends_with('*') ? text.starts_with(pattern.substr(0, pattern.size() - 1)) : text == pattern;
}

/// What a file on drive C: holds, on one line; "nothing" where there is none.
std::string drawnFile(const std::string& name) {
    std::ifstream file("C:\\" + name, std::ios::binary);
    return file ? drawn(std::string(std::istreambuf_iterator<char>(file), {})) : "nothing";
}

/// What a line of the input expects: the sheet as drawnSheet() has it, or its beginning where "*" ends it; after " ??"
/// a part of the hint, or nothing for none; after each " !!" a fact, or "file NAME: TEXT" with the whole text of a
/// file, or its beginning where "*" ends it. A sheet without a caret or a selection may have them anywhere.
struct Expectation {
    std::string sheet, hint;
    bool tellsOfHint = false;
    Facts facts;

    explicit Expectation(std::string line) {
        for (std::size_t place = 0; (place = line.rfind(" !! ")) != std::string::npos; line.resize(place)) {
            facts.push_back(line.substr(place + 4));
        }
        constexpr char mark[] = " ??";
        const std::size_t place = line.find(mark);
        tellsOfHint = place != std::string::npos;
        sheet = line.substr(0, place);
        hint = tellsOfHint ? line.substr(std::min(line.size(), place + sizeof mark)) : "";
    }
    bool isMarked() const { return sheet.find_first_of("|[") != std::string::npos; }
};

bool isFact(const std::string& wanted, const Facts& shown, const Facts& kept) {
    if (wanted.starts_with("file ")) {
        const std::size_t colon = wanted.find(": ");
        return isText(wanted.substr(colon + 2), drawnFile(wanted.substr(5, colon - 5)));
    }
    return std::ranges::any_of(shown, [&](const std::string& fact) { return isAs(wanted, fact, kept); });
}

/// What the window shows beside what is expected of it; empty where they are the same.
std::string difference(const Expectation& expected, const Facts& kept) {
    const HWND window = FindWindowA(calquo::programTitle, nullptr);
    const std::string sheet = drawnSheet(FindWindowExA(window, nullptr, "RichEdit20A", nullptr), expected.isMarked());
    const std::string hint = hintOf(window);
    const bool hints = expected.hint.empty() ? hint.empty() : hint.find(expected.hint) != std::string::npos;
    std::string other;
    if (!isText(expected.sheet, sheet) || (expected.tellsOfHint && !hints)) {
        other = sheet + " ?? " + hint;
    }
    std::string buttons;
    for (const std::string& wanted : expected.facts) {
        buttons += wanted.starts_with("button ") ? wanted : "";
    }
    const Facts shown = expected.facts.empty() ? Facts{} : factsOf(window, buttons);
    for (const std::string& wanted : expected.facts) {
        if (!isFact(wanted, shown, kept)) {
            const std::string name = wanted.substr(0, wanted.find(' ') + 1);
            for (const std::string& fact : shown) {
                other += fact.starts_with(name) ? " !! " + fact : "";
            }
            other += name == "file " ? " !! " + drawnFile(wanted.substr(5, wanted.find(": ") - 5)) : "";
            other += " (not " + wanted + ")";
        }
    }
    return other;
}

/// Asks again and again, for five seconds at the most, until an answer is there; returns the last one.
template <typename Ask, typename IsThere>
std::string ask(const Ask& ask, const IsThere& isThere) {
    const auto end = Clock::now() + std::chrono::seconds(5);
    std::string answer = ask();
    while (!isThere(answer) && Clock::now() < end) {
        Sleep(10);
        answer = ask();
    }
    return answer;
}

/// "ok" as soon as the window shows what is expected and goes on to do so for a moment, or what it shows after a while.
std::string waitFor(const Expectation& expected, const Facts& kept) {
    constexpr int calm = 4;
    int shown = 0;
    const std::string seen = ask([&] { return difference(expected, kept); },
                                 [&](const std::string& other) {
                                     shown = other.empty() ? shown + 1 : 0;
                                     return shown == calm;
                                 });
    return shown > 0 ? "ok" : seen;
}

/// The middle of the button that a panel has by this label or, where none has it, by this number; waits for it. Empty
/// where it does not come.
std::string middleOf(const std::string& panel, const std::string& button) {
    const auto find = [&] {
        std::string numbered;
        for (const std::string& fact : factsOf(FindWindowA(calquo::programTitle, nullptr), panel)) {
            const std::vector<std::string> words = wordsOf(fact);
            if (words[0] == "button" && words.size() > 5 && words[5] == button) {
                return words[3] + ' ' + words[4];
            }
            if (words[0] == "button" && words[2] == button) {
                numbered = words[3] + ' ' + words[4];
            }
        }
        return numbered;
    };
    return ask(find, [](const std::string& place) { return !place.empty(); });
}

/// Answers lines: "keep" remembers the facts of now; "button PANEL BUTTON" asks for its middle, "fact NAME" for a
/// value; "expect EXPECTATION" waits for it.
int serve() {
    Facts kept;
    for (std::string line; std::getline(std::cin, line);) {
        const std::vector<std::string> words = wordsOf(line + " expect");  // an empty line, too, has a first word
        std::string answer = "ok";
        if (words[0] == "keep") {
            kept = factsOf(FindWindowA(calquo::programTitle, nullptr), "all");
        } else if (words[0] == "sheet") {
            const HWND window = FindWindowA(calquo::programTitle, nullptr);
            answer = drawnSheet(FindWindowExA(window, nullptr, "RichEdit20A", nullptr), false);
        } else if (words[0] == "button") {
            answer = middleOf(words[1], words[2]);
        } else if (words[0] == "fact") {
            const Facts facts = factsOf(FindWindowA(calquo::programTitle, nullptr), "");
            const auto found =
                std::ranges::find_if(facts, [&](const auto& fact) { return wordsOf(fact)[0] == words[1]; });
            answer = found == facts.end() ? "" : found->substr(words[1].size() + 1);
        } else {
            answer = waitFor(Expectation(line.substr(line.find(' ') + 1)), kept);
        }
        std::cout << answer << std::endl;
    }
    return 0;
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
        for (const std::string& fact : factsOf(window, "all")) {
            std::puts(fact.c_str());
        }
        return 0;
    }
    const std::string text = utf8(textOf(workArea));
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 2;
}
