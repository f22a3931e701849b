// Rules for results whose text leaves out digits that matter.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "1 eVolt -> joule": a result that is written as 0 and is none. Finds the value.
bool findsHiddenValue(const Situation& situation, Findings& findings);
/// "99999999.99", "2^64": cents, or the digits of a whole number, that the format leaves out. Finds the value in full.
bool findsHiddenDigits(const Situation& situation, Findings& findings);
/// "54000/235e6": fewer than four significant digits of more. Finds the value with more of them.
bool findsFewDigits(const Situation& situation, Findings& findings);

}  // namespace calquo
