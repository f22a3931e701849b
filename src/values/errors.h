// The numbered errors of the engine with their messages, the exception that carries one, and the error position.
#pragma once

#include <cstddef>
#include <cstdint>

namespace calquo {

enum class ErrorCode : std::uint32_t {
    InvalidExpression = 0,
    WrongArgumentCount = 1,
    InvalidArgument = 2,
    InvalidDigit = 3,
    WrongBase = 4,
    InternalFault = 5,
    DomainRange = 6,
    InvalidFormat = 7,
    MisplacedGroupMark = 8,
    LimitExceeded = 9,
    Incomplete = 10,
    ComplexNotAllowed = 11,
    FractionNotAllowed = 12,
    NegativeNotAllowed = 13,
    CannotBeZero = 14,
    CannotBeOne = 15,
    AtLeastOneDay = 16,
    MissingExponent = 17,
    NoSolution = 18,
    Parentheses = 19,
    TooLong = 20,
    UnknownName = 21,
    DivisionByZero = 22,
};

/// What every failure of the engine is thrown as.
struct Except {
    ErrorCode code;
};

/// The message of an error code; "invalid expression" for 0 and for every number above the last code. Never null.
const char* errorMessage(std::uint32_t code);
const char* errorMessage(ErrorCode code);

/// The character index in the evaluated line at which the last error was found.
std::int32_t errorPosition();

/// Sets where an error raised from now on without a place of its own points.
void setErrorPosition(std::int32_t position);

/// Throws the error, after storing its position; a position of -1 leaves the stored one as it is.
[[noreturn]] void raise(ErrorCode code, std::int32_t position = -1);

/// Throws the error at an index of the line.
[[noreturn]] void raiseAt(ErrorCode code, std::size_t index);

}  // namespace calquo
