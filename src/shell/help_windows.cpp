// The HTML Help control as the system has it, and the help file.
#include "shell/help.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "widgets/handles.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr wchar_t helpFileName[] = L"Calquo2.chm";
constexpr wchar_t usualLibrary[] = L"hhctrl.ocx";
constexpr wchar_t registeredLibrary[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

/// The control's two functions: with texts in the system's code page, and in UTF-16.
constexpr WORD ansiOrdinal = 14;
constexpr WORD wideOrdinal = 15;
using AnsiHelp = HWND(WINAPI*)(HWND owner, const char* file, UINT command, DWORD_PTR data);
using WideHelp = HWND(WINAPI*)(HWND owner, const wchar_t* file, UINT command, DWORD_PTR data);

/// Shows the table of contents and the default topic of a help file; takes no data.
constexpr UINT displayTopic = 0;

/// Whether a path begins at a drive's root. Others depend on the folder that happens to be current.
bool isFullPath(std::wstring_view path) { return path.size() > 3 && path.substr(1, 2) == L":\\"; }

/// The registered library, or the system's when none is registered or it does not load; none when the system has no
/// help.
LibraryOwner loadControl() {
    std::array<wchar_t, MAX_PATH> path{};
    DWORD size = sizeof path;
    const bool isRegistered = RegGetValueW(HKEY_CLASSES_ROOT, registeredLibrary, nullptr, RRF_RT_REG_SZ, nullptr,
                                           path.data(), &size) == ERROR_SUCCESS;
    LibraryOwner registered = isRegistered && isFullPath(path.data()) ? loadLibraryAt(path.data()) : LibraryOwner();
    return registered ? std::move(registered) : loadSystemLibrary(usualLibrary);
}

/// A function of the control, null when the system has none.
template <typename Function>
Function find(WORD ordinal) {
    static const HMODULE control = loadControl().release();
    const FARPROC found = control == nullptr ? nullptr : GetProcAddress(control, MAKEINTRESOURCEA(ordinal));
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(found));
}

/// The text in the system's code page; nothing when it has no such character.
std::optional<std::string> ansiText(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    BOOL lost = FALSE;
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), length,
                                                                    nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), length, narrow.data(),
                        static_cast<int>(narrow.size()), nullptr, &lost);
    return lost == FALSE ? std::optional(narrow) : std::nullopt;
}

/// The help file's full path: the control looks for a bare name in the current folder.
std::wstring helpFile() {
    std::wstring program(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()))) ==
           program.size()) {
        program.resize(program.size() * 2);
    }
    program.resize(length);
    return program.substr(0, program.find_last_of(L"\\/") + 1) + helpFileName;
}

}  // namespace

void showHelp(WindowHandle owner, std::string_view topic) {
    const std::wstring file = topic.empty() ? helpFile() : helpFile() + L"::/" + wideText(topic);
    // Paths that the code page cannot express go to the function that takes UTF-16.
    if (const std::optional<std::string> narrow = ansiText(file)) {
        if (const auto show = find<AnsiHelp>(ansiOrdinal)) {
            show(owner, narrow->c_str(), displayTopic, 0);
        }
    } else if (const auto show = find<WideHelp>(wideOrdinal)) {
        show(owner, file.c_str(), displayTopic, 0);
    }
}

}  // namespace calquo
