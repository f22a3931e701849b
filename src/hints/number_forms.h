// Numbers as people write them elsewhere.
#pragma once

#include "hints/correction.h"

namespace calquo {

/// "0xFF", "0b101", "0o17", "#FF": bases that stand before the digits in another way. Finds the number.
bool replaceBasePrefixes(Draft& draft, Findings& findings);
/// "max(3,4)": commas in place of semicolons. Finds the group mark.
bool separateItems(Draft& draft, Findings& findings);
/// "max(3 4)": nothing between the items of a list.
bool separateNeighbours(Draft& draft, Findings& findings);
/// "1'234.50", "1_000": other marks between groups of digits. Finds the mark.
bool joinMarkedGroups(Draft& draft, Findings& findings);
/// "21.11.2026": a date, which is left as it is.
bool tellOfDates(Draft& draft, Findings& findings);
/// "2,5*4", or "2.5" where the comma is the decimal mark. Finds the decimal mark and the group mark.
bool exchangeMarks(Draft& draft, Findings& findings);
/// "1 234.5": blanks between the groups of a number. Finds the number.
bool joinGroups(Draft& draft, Findings& findings);
/// "12.5 7.25 100": numbers side by side, more than two of them.
bool sumNumbers(Draft& draft, Findings& findings);
/// "3x10^8", "3 x 4": an x in place of the multiplication sign.
bool replaceTimesLetter(Draft& draft, Findings& findings);

}  // namespace calquo
