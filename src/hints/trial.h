// Evaluates the line that a hint would propose, before the hint proposes it.
#pragma once

#include <string_view>

#include "hints/rule.h"

namespace calquo {

/// Whether an expression has a result. Leaves the error position and the random numbers as they are: what would draw
/// one is tried with another function of as many arguments.
bool hasResult(std::string_view expression);

/// Evaluates an expression into `answer`, under the same promise; false when it fails.
bool evaluates(std::string_view expression, NumericFormat format, Answer& answer);

}  // namespace calquo
