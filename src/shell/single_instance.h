// Only one Calquo runs at a time: a later start brings the first one's window to the front.
#pragma once

#include "widgets/handles.h"

namespace calquo {

/// Says that the program runs, from its making to its end, by a mutex under the program's title.
class RunningMark {
public:
    RunningMark();
    RunningMark(const RunningMark&) = delete;
    RunningMark& operator=(const RunningMark&) = delete;
    ~RunningMark();

    /// Whether no other instance ran when this one started.
    bool isFirst() const { return first_; }

private:
    void* mutex_;
    bool first_;
};

/// Restores the running program's window if it is minimized and brings it to the front; false when there is none.
bool bringRunningProgramForward();

}  // namespace calquo
