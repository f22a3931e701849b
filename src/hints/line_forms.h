// Lines whose form as a whole is not the language's.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "=2+3": an expression after the "=" that begins the line. Finds the expression.
bool beginsWithEquals(const Situation& situation, Findings& findings);

/// "A = 12 m2, U = 0.24": a note, which is left as it is. Finds the error's message.
bool isNoteLine(const Situation& situation, Findings& findings);

}  // namespace calquo
