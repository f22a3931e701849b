// The table of messages and the module-wide error position.
#include "values/errors.h"

#include <iterator>

namespace calquo {
namespace {

struct ErrorRow {
    ErrorCode code;
    const char* message;
};

// In the order of the codes, so that a code is the index of its row.
constexpr ErrorRow rows[] = {
    {ErrorCode::InvalidExpression, "invalid expression"},
    {ErrorCode::WrongArgumentCount, "wrong number of arguments"},
    {ErrorCode::InvalidArgument, "invalid argument"},
    {ErrorCode::InvalidDigit, "invalid digit, not within the numeric base"},
    {ErrorCode::WrongBase, "wrong numeric base"},
    {ErrorCode::InternalFault, "internal fault"},
    {ErrorCode::DomainRange, "domain range"},
    {ErrorCode::InvalidFormat, "invalid format"},
    {ErrorCode::MisplacedGroupMark, "misplaced group mark"},
    {ErrorCode::LimitExceeded, "limit exceeded"},
    {ErrorCode::Incomplete, "incomplete"},
    {ErrorCode::ComplexNotAllowed, "complex value not allowed"},
    {ErrorCode::FractionNotAllowed, "fractional value not allowed"},
    {ErrorCode::NegativeNotAllowed, "negative value not allowed"},
    {ErrorCode::CannotBeZero, "cannot be 0"},
    {ErrorCode::CannotBeOne, "cannot be 1"},
    {ErrorCode::AtLeastOneDay, "should be at least 1 day, time unit may be missing"},
    {ErrorCode::MissingExponent, "missing exponent value"},
    {ErrorCode::NoSolution, "no solution"},
    {ErrorCode::Parentheses, "parentheses"},
    {ErrorCode::TooLong, "too long"},
    {ErrorCode::UnknownName, "unknown name"},
    {ErrorCode::DivisionByZero, "division by zero"},
};

constexpr bool standAtTheirCodes() {
    std::size_t index = 0;
    while (index < std::size(rows) && static_cast<std::size_t>(rows[index].code) == index) {
        ++index;
    }
    return index == std::size(rows);
}
static_assert(standAtTheirCodes() && std::size(rows) == static_cast<std::size_t>(ErrorCode::DivisionByZero) + 1);

std::int32_t position = 0;

}  // namespace

const char* errorMessage(std::uint32_t code) { return rows[code < std::size(rows) ? code : 0].message; }

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
