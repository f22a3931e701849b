// Powers and roots of negative numbers.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "-2^2": the sign belongs to the number that is raised. Finds the power and the line that negates it.
bool findsSignBeforePower(const Situation& situation, Findings& findings);
/// "8^1/3": a fraction as exponent, of which the power takes the 1. Finds the line with parentheses.
bool findsFractionAsExponent(const Situation& situation, Findings& findings);
/// "(-8)^(1/3)", "cbrt(-8)": a root of odd degree is the complex one. Finds the line that gives the real one.
bool findsComplexRoot(const Situation& situation, Findings& findings);

}  // namespace calquo
