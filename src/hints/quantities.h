// Quantities of several parts: feet and inches, hours and minutes, a whole number and a fraction.
#pragma once

#include "hints/correction.h"

namespace calquo {

/// "6'2\"": feet and inches. Finds the sum.
bool replaceFeetAndInches(Draft& draft, Findings& findings);
/// "5 deg 30'": degrees, minutes and seconds of arc.
bool replaceArcMinutes(Draft& draft, Findings& findings);
/// "1:30", "1:30:15": a time. Finds the sum.
bool replaceClockTimes(Draft& draft, Findings& findings);
/// "12:30 to 17:45": from one time of the day to another. Finds the difference.
bool subtractClockTimes(Draft& draft, Findings& findings);
/// "16:9": a ratio.
bool divideRatios(Draft& draft, Findings& findings);
/// "2h30m": a unit and a number in one name.
bool splitGluedUnits(Draft& draft, Findings& findings);
/// "2 h 30 m", "6 foot 2 inch": a number with a unit after another. Finds the sum.
bool addQuantities(Draft& draft, Findings& findings);
/// "1h + 30m", "90m to h": minutes by the letter of the metre, where hours stand before them or are asked for.
bool replaceMetresByMinutes(Draft& draft, Findings& findings);
/// "3 1/2": a fraction after a whole number. Finds the sum.
bool addFractions(Draft& draft, Findings& findings);

}  // namespace calquo
