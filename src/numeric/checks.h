// The one way in which every numeric function refuses an argument or a result.
#pragma once

#include <cstdint>

#include "values/errors.h"
#include "values/extended.h"
#include "values/value.h"

namespace calquo {

/// Which conditions a check refuses. Whatever the bits, a number outside the finite range is refused (6).
enum class CheckFlags : std::uint32_t {
    None = 0,
    Report = 0x01,      ///< raise the error; without it a check only answers false
    NoFraction = 0x02,  ///< refuse a fractional part (12)
    NoNegative = 0x04,  ///< refuse numbers below 0 (13)
    RealOnly = 0x08,    ///< refuse a value whose imaginary part is not 0 (11)
    NoZero = 0x10,      ///< refuse exactly 0 (14)
    NoOne = 0x20,       ///< refuse exactly 1 (15)
};

constexpr CheckFlags operator|(CheckFlags a, CheckFlags b) {
    return static_cast<CheckFlags>(static_cast<std::uint32_t>(a) | static_cast<std::uint32_t>(b));
}
constexpr CheckFlags operator&(CheckFlags a, CheckFlags b) {
    return static_cast<CheckFlags>(static_cast<std::uint32_t>(a) & static_cast<std::uint32_t>(b));
}
constexpr CheckFlags operator~(CheckFlags flags) { return static_cast<CheckFlags>(~static_cast<std::uint32_t>(flags)); }
constexpr bool has(CheckFlags flags, CheckFlags bit) { return (flags & bit) != CheckFlags::None; }

/// Whether a number lies outside the finite range, that is, is an infinity. A NaN does not.
inline bool outOfRange(Real x) { return x > largestFinite || x < -largestFinite; }

/// Whether a finite number has a fractional part other than 0. A NaN has none.
bool hasFraction(Real x);

/// Tests one number: range (6), NoFraction (12), NoNegative (13), NoZero (14), NoOne (15), in this order; the range
/// always, the others when their bit is set. Answers true when nothing is refused. On the first refusal raises the
/// error at the position (-1 is read as 0) if Report is set, else answers false. A NaN passes every test.
bool checkNumber(Real x, CheckFlags flags, std::int32_t position = -1);

/// Tests a value. A position of -1 stands for the end of the value's literal. A real value is tested as its real part;
/// any other is refused under RealOnly (11), counts as not 0, and is tested part by part, each part at its own end in
/// the literal. Raises or answers like checkNumber, but an error without any place of its own keeps the error
/// position.
bool checkValue(const Value& v, CheckFlags flags, std::int32_t position = -1);

/// Tests that a value is real, a NaN imaginary part counting as not real (11), and its real part as checkNumber does.
/// Positions as for checkValue.
bool requireReal(const Value& v, CheckFlags flags, std::int32_t position = -1);

}  // namespace calquo
