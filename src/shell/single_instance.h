// Only one Calquo runs at a time: a later start brings the first one's window to the front.
#pragma once

#include "widgets/handles.h"

namespace calquo {

/// Says that the program runs, from its making to its end, by a mutex under the program's title.
class InstanceMutex {
public:
    InstanceMutex();
    InstanceMutex(const InstanceMutex&) = delete;
    InstanceMutex& operator=(const InstanceMutex&) = delete;
    ~InstanceMutex();

    /// Whether no other instance ran when this one started.
    bool isFirst() const { return first_; }

private:
    void* mutex_;
    bool first_;
};

/// Restores the running program's window if it is minimized and brings it to the front; false when there is none.
bool bringRunningProgramForward();

}  // namespace calquo
