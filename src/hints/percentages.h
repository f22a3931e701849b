// Corrections of percentages that are added or subtracted.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "49.90-20%": the percentage is a number of its own, no share of what stands before it. Finds the percentage, its
/// value, and the line that means the share.
bool findsAddedPercentage(const Situation& situation, Findings& findings);

}  // namespace calquo
