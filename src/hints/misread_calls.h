// Rules for calls that mean something other than their writer thinks.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "sum(100,200,300)": one number with group marks where a list was meant. Finds the group mark and the line with
/// semicolons.
bool findsGroupsAsList(const Situation& situation, Findings& findings);
/// "log(8; 2)", "round(3.14159; 2)": two arguments of a function of one number are a complex number. Finds the function
/// and the line for both arguments.
bool findsComplexArgument(const Situation& situation, Findings& findings);
/// "mod(17; 5)": the whole quotient in place of the remainder. Finds the line for the remainder.
bool findsQuotientAsRemainder(const Situation& situation, Findings& findings);
/// "lg(100)": the logarithm to base 2 of a power of ten. Finds the line for base 10.
bool findsLogarithmOfOtherBase(const Situation& situation, Findings& findings);

}  // namespace calquo
