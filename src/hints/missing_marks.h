// Corrections of lines that lack one mark: a multiplication sign, a parenthesis.
#pragma once

#include "hints/correction.h"

namespace calquo {

/// "3 m^2", "1000(1+5%)^10": a power of what stands side by side with a number. Finds the operand.
bool multiplyPowers(Draft& draft, Findings& findings);
/// "5 m -> foot^2": a target that is a power.
bool enclosePowerTargets(Draft& draft, Findings& findings);
/// "(2+3)4", "pi 2": a number after an operand.
bool multiplyNumbers(Draft& draft, Findings& findings);
/// "pi()": parentheses after a name that takes no arguments. Finds the name.
bool dropEmptyLists(Draft& draft, Findings& findings);
/// "5!!", "50%%": a second postfix operator. Finds it.
bool enclosePostfixes(Draft& draft, Findings& findings);
/// "(2+3*4": a parenthesis that is not closed.
bool closeParentheses(Draft& draft, Findings& findings);

}  // namespace calquo
