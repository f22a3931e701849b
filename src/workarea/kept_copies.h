// The copies of the work area that are kept for the next start: what their files are called, which of them stay, and
// how often one is written.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace calquo {

/// When a run of the program began, in UTC, and its process: together they name one run for good.
struct RunStart {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    std::uint32_t process = 0;
};

/// The file in which a run keeps its work area, "2026-11-22 02-44-40-125 000007C4.rtf": names sort by age, and two runs
/// never have the same.
std::wstring copyName(const RunStart& run);

/// The name that a copy takes when its run has ended in order with its text in a file of the user's or without text,
/// "... 000007C4 saved.rtf".
std::wstring savedCopyName(const std::wstring& name);
bool isSavedCopy(const std::wstring& name);

/// The names of copies among those of a folder's files, newest first. Other files are left out.
std::vector<std::wstring> copiesNewestFirst(std::vector<std::wstring> names);

/// How many copies are kept, those of other running programs aside.
inline constexpr std::size_t mostCopies = 5;

/// Lets writing take at most a twentieth of the time, however large the work area is.
class WritingPace {
public:
    using Clock = std::chrono::steady_clock;
    using Time = Clock::time_point;

    /// Whether twenty times the duration of the last writing has passed since its end.
    bool allows(Time now) const { return now >= next_; }
    void wrote(Time begin, Time end) { next_ = end + 20 * (end - begin); }

private:
    Time next_ = Time::min();
};

}  // namespace calquo
