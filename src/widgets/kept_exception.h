// An exception's way from a window procedure to the message loop. It cannot fly there itself: the system's own frames
// lie between, and 32-bit code cannot unwind through them.
#pragma once

#include <utility>

namespace calquo {

/// Keeps the exception that is being handled; one that is kept already stays.
void keepException() noexcept;

/// Throws the kept exception, if there is one, and forgets it.
void rethrowKeptException();

/// What `action` returns; should it throw, the exception is kept and `fallback` returned.
template <typename Result, typename Action>
Result keepingExceptions(Result fallback, Action&& action) noexcept {
    try {
        return std::forward<Action>(action)();
    } catch (...) {
        keepException();
        return fallback;
    }
}

}  // namespace calquo
