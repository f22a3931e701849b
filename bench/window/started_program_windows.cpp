// Starting, watching and ending a program by the system's calls.
#include "started_program.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "widgets/windows_api.h"

// Needs <windows.h> before it.
#include <psapi.h>

namespace calquo {
namespace {

constexpr DWORD patienceAtEnd = 20000;       // milliseconds
constexpr UINT patienceForCommand = 300000;  // milliseconds

double ticks(BOOL(WINAPI* query)(LARGE_INTEGER*)) {
    LARGE_INTEGER count{};
    query(&count);
    return static_cast<double>(count.QuadPart);
}

}  // namespace

double millisecondsNow() { return 1000 * ticks(QueryPerformanceCounter) / ticks(QueryPerformanceFrequency); }

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double medianRatio(std::span<const double> values, std::span<const double> ofLeast) {
    std::vector<double> ratios(values.size());
    std::transform(values.begin(), values.end(), ofLeast.begin(), ratios.begin(), std::divides<>());
    return median(ratios);
}

std::wstring ownFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

/// What the system calls for each window.
struct StartedProgram::Enumeration {
    static BOOL CALLBACK noteShownWindow(HWND window, LPARAM self) {
        auto& program = *reinterpret_cast<StartedProgram*>(self);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        const bool isMain =
            owner == program.identifier_ && IsWindowVisible(window) != 0 && GetWindow(window, GW_CHILD) != nullptr;
        if (isMain) {
            program.window_ = window;
        }
        return isMain ? FALSE : TRUE;
    }

    static BOOL CALLBACK noteUnpainted(HWND window, LPARAM unpainted) {
        if (GetUpdateRect(window, nullptr, FALSE) != 0) {
            ++*reinterpret_cast<int*>(unpainted);
        }
        return TRUE;
    }

    static bool isPainted(HWND window) {
        int unpainted = 0;
        noteUnpainted(window, reinterpret_cast<LPARAM>(&unpainted));
        EnumChildWindows(window, noteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
        return unpainted == 0;
    }

    static BOOL CALLBACK noteRichEdit(HWND window, LPARAM found) {
        constexpr std::wstring_view beginning = L"RichEdit";
        wchar_t name[64] = L"";
        const int length = GetClassNameW(window, name, static_cast<int>(std::size(name)));
        const int compared = std::min(length, static_cast<int>(beginning.size()));
        if (CompareStringOrdinal(name, compared, beginning.data(), static_cast<int>(beginning.size()), TRUE) !=
            CSTR_EQUAL) {
            return TRUE;
        }
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
};

StartedProgram::StartedProgram(std::wstring commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) ==
        0) {
        throw std::runtime_error("cannot start a program");
    }
    CloseHandle(process.hThread);
    process_ = process.hProcess;
    identifier_ = process.dwProcessId;
}

StartedProgram::~StartedProgram() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process_, patienceAtEnd) != WAIT_OBJECT_0) {
        TerminateProcess(process_, 1);
    }
    CloseHandle(process_);
}

double StartedProgram::waitUntilPainted() {
    double looked = 0;
    do {
        if (WaitForSingleObject(process_, 0) == WAIT_OBJECT_0) {
            throw std::runtime_error("a program ended without a window; does a Calquo run?");
        }
        WaitForInputIdle(process_, INFINITE);
        EnumWindows(Enumeration::noteShownWindow, reinterpret_cast<LPARAM>(this));
        SendMessageW(window_, WM_NULL, 0, 0);
        looked = millisecondsNow();
    } while (window_ == nullptr || !Enumeration::isPainted(window_));
    return looked;
}

void StartedProgram::command(unsigned identifier) const {
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(window_, WM_COMMAND, identifier, 0, SMTO_NORMAL, patienceForCommand, &answer) == 0) {
        throw std::runtime_error("a command did not come to its end");
    }
}

void StartedProgram::type(wchar_t character) const { SendMessageW(richEdit(), WM_CHAR, character, 1); }

long long StartedProgram::textLength() const { return SendMessageW(richEdit(), WM_GETTEXTLENGTH, 0, 0); }

WindowHandle StartedProgram::richEdit() const {
    HWND control = nullptr;
    EnumChildWindows(window_, Enumeration::noteRichEdit, reinterpret_cast<LPARAM>(&control));
    return control;
}

HeldMemory StartedProgram::heldMemory() const {
    constexpr double megabyte = 1024 * 1024;
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(process_, &counters, sizeof counters);
    return {static_cast<double>(counters.PagefileUsage) / megabyte,
            static_cast<double>(counters.WorkingSetSize) / megabyte};
}

}  // namespace calquo
