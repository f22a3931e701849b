// Values written as expressions that read back.
#pragma once

#include <string>
#include <string_view>

#include "values/value.h"

namespace calquo {

/// Whether a line evaluates to a value, to the last bit of both parts. Never raises.
bool readsAs(std::string_view line, const Value& value);

/// A real number with the fewest digits that read back, at most 21, in scientific notation below 1e-5 and from 1e20 on;
/// empty for what the language cannot say, negative infinity.
std::string fullText(Real number);

/// The same for a value.
std::string fullText(const Value& value);

/// "p/q", and empty where the number is no such fraction or is whole; see detailsOf().
std::string fractionText(Real number);

/// A whole number below 2^64 in magnitude in a base of 2 to 36, with its prefix; empty for any other.
std::string baseText(Real number, std::uint32_t base);

/// "polar(r; angle)" with the angle times a unit, whose name goes after it when it has one. Empty
/// where a part of the value or its magnitude is not finite.
std::string polarText(const Value& value, std::string_view unitName, Real unit);

/// "1 day + 2 hour + 30 minute + 15 second", without what is 0; empty below a minute and from 1e12 seconds on.
std::string timeText(Real seconds);

}  // namespace calquo
