// The table of messages and the module-wide error position.
#include "values/errors.h"

#include <array>

namespace calquo {
namespace {

// Indexed by code.
constexpr std::array messages = {
    "invalid expression",
    "wrong number of arguments",
    "invalid argument",
    "invalid digit, not within the numeric base",
    "wrong numeric base",
    "internal fault",
    "domain range",
    "invalid format",
    "misplaced group mark",
    "limit exceeded",
    "incomplete",
    "complex value not allowed",
    "fractional value not allowed",
    "negative value not allowed",
    "cannot be 0",
    "cannot be 1",
    "should be at least 1 day, time unit may be missing",
    "missing exponent value",
    "no solution",
    "parentheses",
    "too long",
    "unknown name",
    "division by zero",
};
static_assert(messages.size() == static_cast<std::size_t>(ErrorCode::DivisionByZero) + 1);

std::int32_t position = 0;

}  // namespace

const char* errorMessage(std::uint32_t code) { return messages[code < messages.size() ? code : 0]; }

const char* errorMessage(ErrorCode code) { return errorMessage(static_cast<std::uint32_t>(code)); }

std::int32_t errorPosition() { return position; }

void setErrorPosition(std::int32_t newPosition) { position = newPosition; }

[[noreturn]] void raise(ErrorCode code, std::int32_t newPosition) {
    if (newPosition != -1) {
        position = newPosition;
    }
    throw Except{code};
}

[[noreturn]] void raiseAt(ErrorCode code, std::size_t index) { raise(code, static_cast<std::int32_t>(index)); }

}  // namespace calquo
