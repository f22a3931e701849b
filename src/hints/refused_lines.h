// What is said about a line that the language refuses.
#pragma once

#include <string>

#include "hints/rule.h"

namespace calquo {

/// Why the line is refused, and what to write in its place: the line as the corrections make it, where that has a
/// result; else the name that is not known with those near it, or the arguments that a function wants. Empty where
/// none of this is to be said.
std::string hintForRefused(const Situation& situation);

}  // namespace calquo
