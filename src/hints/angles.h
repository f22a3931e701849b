// Rules for functions of angles, and for functions that take less of the line than its writer thinks.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "sin(30)": a number that is an angle in degrees rather than in radians. Finds the call and the line with a unit.
bool findsRadiansForDegrees(const Situation& situation, Findings& findings);
/// "aTan(1)" where the buttons add degrees. Finds the unit and the line that converts.
bool findsAngleInRadians(const Situation& situation, Findings& findings);
/// "sin 30 deg", "sin pi/2", "ln 2^3": without parentheses a function takes the one number after it. Finds the function
/// and the line with parentheses.
bool findsShortArgument(const Situation& situation, Findings& findings);

}  // namespace calquo
