// Arrows, quotients of quantities and temperatures.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "60 km/hour -> mile/hour": the arrow takes one operand as its target. Finds the target, and the line with
/// parentheses.
bool findsLongTarget(const Situation& situation, Findings& findings);
/// "5 km + 300 m -> km": the arrow converts the last part of a sum. Finds that part, and the line with parentheses.
bool findsConvertedPart(const Situation& situation, Findings& findings);
/// "100 km / 2 hour", "1/2 pi": what stands beside a divisor multiplies. Finds the line with parentheses.
bool findsDivisorSideBySide(const Situation& situation, Findings& findings);
/// "25 deg C -> F": a degree before the name of a scale is an angle. Finds the line without it.
bool findsDegreeOfScale(const Situation& situation, Findings& findings);
/// "5 km -> kg": a unit of one kind and a target of another. Finds both.
bool findsOtherDimension(const Situation& situation, Findings& findings);
/// "2 pi r", "m*c^2": the letter of a temperature that follows no number. Finds it and its description.
bool findsTemperatureAsVariable(const Situation& situation, Findings& findings);
/// "72 F": a temperature without an arrow. Finds the scale's description, and a line that converts.
bool findsLoneTemperature(const Situation& situation, Findings& findings);

}  // namespace calquo
