// start_time [ROUNDS]: how long Calquo takes from CreateProcess until its window is painted, without panels and with
// six, beside a minimal window with one rich edit control. Overwrites Calquo's settings.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/registry_storage.h"
#include "shell/settings.h"
#include "widgets/windows_api.h"

namespace {

using Milliseconds = double;

/// The windows are of one size and stand at one place; the minimal window has the same numbers.
constexpr calquo::ScreenRectangle place{200, 100, 1000, 700};

constexpr std::array<std::uint16_t, 6> sixPanels = {0xA110, 0xA111, 0xA311, 0xA010, 0xA550, 0xA5F0};

struct Candidate {
    const char* name;
    const wchar_t* program;  ///< Beside this program.
    std::span<const std::uint16_t> panels;
    double limit;  ///< Times a minimal window's start.
    std::vector<Milliseconds> times{};
};

std::int64_t ticks(BOOL(WINAPI* query)(LARGE_INTEGER*)) {
    LARGE_INTEGER count{};
    query(&count);
    return count.QuadPart;
}

class StartedProgram {
public:
    explicit StartedProgram(std::wstring path) {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (CreateProcessW(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process_) ==
            0) {
            throw std::runtime_error("cannot start a program");
        }
    }
    ~StartedProgram() {
        PostMessageW(window_, WM_CLOSE, 0, 0);
        constexpr DWORD patience = 10000;
        if (WaitForSingleObject(process_.hProcess, patience) != WAIT_OBJECT_0) {
            TerminateProcess(process_.hProcess, 1);
        }
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    /// Waits until the program has shown a window, waits for input, answers a message, and no part of the window is
    /// left to be painted; returns when it answered.
    std::int64_t paintedAt() {
        std::int64_t answered = 0;
        do {
            if (WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0) {
                throw std::runtime_error("a program ended without a window; does a Calquo run?");
            }
            WaitForInputIdle(process_.hProcess, INFINITE);
            EnumWindows(noteShownWindow, reinterpret_cast<LPARAM>(this));
            SendMessageW(window_, WM_NULL, 0, 0);
            answered = ticks(QueryPerformanceCounter);
        } while (window_ == nullptr || !isPainted());
        return answered;
    }

private:
    static BOOL CALLBACK noteShownWindow(HWND window, LPARAM self) {
        auto& program = *reinterpret_cast<StartedProgram*>(self);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        const bool isMain = owner == program.process_.dwProcessId && IsWindowVisible(window) != 0 &&
                            GetWindow(window, GW_CHILD) != nullptr;
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

    bool isPainted() const {
        int unpainted = 0;
        noteUnpainted(window_, reinterpret_cast<LPARAM>(&unpainted));
        EnumChildWindows(window_, noteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
        return unpainted == 0;
    }

    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
};

std::wstring ownFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

Milliseconds measure(const Candidate& candidate) {
    calquo::RegistryStorage registry;
    calquo::Settings settings(registry);
    settings.setWindowRect(place);
    settings.setSelectedPanels(candidate.panels);
    settings.saveAll();
    const std::int64_t begin = ticks(QueryPerformanceCounter);
    StartedProgram program(ownFolder() + candidate.program);
    const std::int64_t duration = program.paintedAt() - begin;
    return 1000.0 * static_cast<Milliseconds>(duration) / static_cast<Milliseconds>(ticks(QueryPerformanceFrequency));
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The median of what each round says, since a machine may change its speed from one to the next.
double medianRatio(const Candidate& candidate, const Candidate& least) {
    std::vector<double> ratios(candidate.times.size());
    std::transform(candidate.times.begin(), candidate.times.end(), least.times.begin(), ratios.begin(),
                   std::divides<>());
    return median(ratios);
}

void run(int rounds) {
    std::array<Candidate, 3> candidates = {{
        {"a minimal window", L"minimal_window.exe", {}, 1.0},
        {"Calquo without panels", L"..\\Calquo.exe", {}, 1.3},
        {"Calquo with six panels", L"..\\Calquo.exe", sixPanels, 1.8},
    }};
    // The first round only fills the system's caches.
    for (int round = 0; round <= rounds; ++round) {
        for (Candidate& candidate : candidates) {
            const Milliseconds time = measure(candidate);
            if (round > 0) {
                candidate.times.push_back(time);
            }
        }
    }
    std::printf("start to painted window: medians of %d rounds\n", rounds);
    const Candidate& least = candidates.front();
    for (const Candidate& candidate : candidates) {
        std::printf("%-22s %6.1f ms", candidate.name, median(candidate.times));
        if (candidate.limit > least.limit) {
            std::printf(", %.2f times a minimal window (at most %.1f)", medianRatio(candidate, least), candidate.limit);
        }
        std::printf("\n");
    }
}

}  // namespace

int main(int count, char** arguments) {
    try {
        run(count > 1 ? std::max(1, static_cast<int>(std::strtol(arguments[1], nullptr, 10))) : 25);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "start_time: %s\n", failure.what());
        return 1;
    }
    return 0;
}
