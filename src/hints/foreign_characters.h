// Characters that the language does not have.
#pragma once

#include "hints/correction.h"

namespace calquo {

/// "[2+3]*4": brackets and braces in place of parentheses.
bool replaceBrackets(Draft& draft, Findings& findings);
/// "|-5|": bars around an absolute value.
bool replaceBars(Draft& draft, Findings& findings);
/// "$1,234.50*3": a sign of a currency, which is left out.
bool dropCurrencySigns(Draft& draft, Findings& findings);
/// "25°C", "30°": a sign that means a unit or half of one.
bool replaceDegreeSigns(Draft& draft, Findings& findings);
/// "2×3", "5²": signs of print for which the language has others. Finds the sign and what is written for it.
bool replaceSigns(Draft& draft, Findings& findings);

}  // namespace calquo
