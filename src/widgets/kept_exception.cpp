// The one exception that waits for the message loop.
#include "widgets/kept_exception.h"

#include <exception>

namespace calquo {
namespace {

std::exception_ptr kept;

}  // namespace

void keepException() noexcept {
    if (!kept) {
        kept = std::current_exception();
    }
}

void rethrowKeptException() {
    if (kept) {
        std::rethrow_exception(std::exchange(kept, nullptr));
    }
}

}  // namespace calquo
