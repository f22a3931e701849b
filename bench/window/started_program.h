// A program with a window that is started to be measured, and what the measuring programs have in common.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "shell/settings.h"
#include "widgets/handles.h"

namespace calquo {

/// The windows are of one size and stand at one place; the minimal window has the same numbers.
inline constexpr ScreenRectangle measuredPlace{200, 100, 1000, 700};

/// What a process holds, in megabytes.
struct HeldMemory {
    double privateUse = 0;  ///< Memory that is its own. Wine counts of it what has been written to.
    double workingSet = 0;  ///< In main memory, what it shares with others included.
};

/// Since some moment that stays the same.
double millisecondsNow();

double median(std::vector<double> values);

/// The median of what each round says, since a machine may change its speed from one to the next.
double medianRatio(std::span<const double> values, std::span<const double> ofLeast);

/// The folder of this program, with a backslash at its end.
std::wstring ownFolder();

/// A program that is asked to close at the end of its measuring, and ended when it does not.
class StartedProgram {
public:
    explicit StartedProgram(std::wstring commandLine);
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    /// Waits until the program has shown a window, waits for input, answers a message, and no part of the window is
    /// left to be painted. Returns when that was, by millisecondsNow(); to look at hundreds of windows takes a while.
    double waitUntilPainted();

    /// Sends the command of a menu entry, and waits until it is done.
    void command(unsigned identifier) const;

    /// Types a character into the rich edit control.
    void type(wchar_t character) const;

    /// The number of characters in the rich edit control, line ends as two; 0 when there is none.
    long long textLength() const;

    HeldMemory heldMemory() const;

private:
    struct Enumeration;

    /// Null when there is none.
    WindowHandle richEdit() const;

    void* process_ = nullptr;  // the system's handle
    unsigned long identifier_ = 0;
    WindowHandle window_ = nullptr;
};

}  // namespace calquo
