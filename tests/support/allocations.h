// An operator new that counts, for tests of what allocates memory and of what is not freed.
#pragma once

#include <cstddef>

namespace calquo {

/// How often operator new was called so far.
int allocationsMade();

/// Results of operator new that have not been deleted.
int allocationsHeld();

/// While it lives, operator new gives no more than this many bytes in all, whatever is deleted meanwhile.
class MemoryLimit {
public:
    explicit MemoryLimit(std::size_t bytes);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

/// While it lives, the call of operator new that comes after `count` others fails.
class FailingAllocation {
public:
    explicit FailingAllocation(int count);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    bool hasFailed() const;
};

}  // namespace calquo
