// Complex numbers written as a list of their two parts.
#pragma once

#include <cstddef>

#include "engine/line_tokens.h"
#include "values/value.h"

namespace calquo {

/// The number re + i im of a list of two items that stands from `start` to `end` of the line. Raises 11 ("complex value
/// not allowed") for a part that is not real, at the end of its literal or else at the start. Where both are literals,
/// signs aside, the list is itself a literal and the number carries its place.
Value complexNumber(LineTokens& line, std::size_t start, std::size_t end, const Value& re, const Value& im);

}  // namespace calquo
