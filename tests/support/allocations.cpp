// The counting operator new and its deletes.
#include "support/allocations.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#ifdef _WIN32
#include <malloc.h>
#endif

namespace {

std::atomic<int> made = 0;
std::atomic<int> deleted = 0;

/// How many calls succeed before the one that fails; negative after that one, and where none is to fail.
constexpr int noneFails = -2;
std::atomic<int> leftToFail = noneFails;

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> bytesLeft = unlimited;

/// Takes memory out of what is left, if there is a limit, and throws where the call is to fail.
void take(std::size_t size) {
    if (leftToFail >= 0 && leftToFail-- == 0) {
        throw std::bad_alloc();
    }
    if (bytesLeft == unlimited) {
        return;
    }
    if (size > bytesLeft) {
        throw std::bad_alloc();
    }
    bytesLeft -= size;
}

void* counted(void* memory) {
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    ++made;
    return memory;
}

}  // namespace

// The other forms of both end in these; those that do not throw would be the address check's own, were they not here.
void* operator new(std::size_t size) {
    take(size);
    return counted(std::malloc(size));
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    take(size);
    const auto unit = static_cast<std::size_t>(alignment);
#ifdef _WIN32
    return counted(_aligned_malloc(size, unit));
#else
    return counted(std::aligned_alloc(unit, (size + unit - 1) / unit * unit));
#endif
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept {
    deleted += memory != nullptr ? 1 : 0;
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
    deleted += memory != nullptr ? 1 : 0;
#ifdef _WIN32
    _aligned_free(memory);
#else
    std::free(memory);
#endif
}

void operator delete(void* memory, const std::nothrow_t&) noexcept { operator delete(memory); }

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

void operator delete(void* memory, std::size_t, std::align_val_t alignment) noexcept {
    operator delete(memory, alignment);
}

namespace calquo {

int allocationsMade() { return made; }

int allocationsHeld() { return made - deleted; }

MemoryLimit::MemoryLimit(std::size_t bytes) { bytesLeft = bytes; }

MemoryLimit::~MemoryLimit() { bytesLeft = unlimited; }

FailingAllocation::FailingAllocation(int count) { leftToFail = count; }

FailingAllocation::~FailingAllocation() { leftToFail = noneFails; }

bool FailingAllocation::hasFailed() const { return leftToFail == -1; }

}  // namespace calquo
