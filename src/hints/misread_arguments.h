// Calls whose arguments are probably not what their writer takes them for.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "fv(100; 1 year; 5)": a rate of interest of 1 or more without a percent sign. Finds the rate, it in percent, and the
/// line with a percent sign.
bool findsWholeRate(const Situation& situation, Findings& findings);
/// "6%/12" as a rate of interest: one that is divided into periods. Finds the rate and the line without its divisor.
bool findsDividedRate(const Situation& situation, Findings& findings);
/// "logB(2; 8)": the base before the value. Finds the call's form and the line with both exchanged.
bool findsSwappedArguments(const Situation& situation, Findings& findings);
/// "bShift(1; 8)": all bits are shifted out. Finds the line that shifts the other way.
bool findsBitsShiftedOut(const Situation& situation, Findings& findings);

}  // namespace calquo
