// Rules for lines, or numbers in them, that look like one thing and are another in the language.
#pragma once

#include "hints/rule.h"

namespace calquo {

/// "=2+3": an expression after the "=" that begins the line. Finds the expression.
bool beginsWithEquals(const Situation& situation, Findings& findings);
/// "x=5": a letter that is to be a variable. Finds the letter with its "=".
bool findsVariable(const Situation& situation, Findings& findings);
/// "5 km = mile": a unit after the "=". Finds the line with an arrow.
bool findsUnitAfterEquals(const Situation& situation, Findings& findings);
/// "1.234,56": the group mark after the decimal mark. Finds the number, its value, and the line with both exchanged.
bool findsExchangedMarks(const Situation& situation, Findings& findings);
/// "2026-11-21", "21/11/2026": a date, which is a difference or a quotient. Finds the date.
bool findsDate(const Situation& situation, Findings& findings);
/// "3!=2", "12==3": a comparison, of which all after the first "=" is no part of the expression.
bool findsComparison(const Situation& situation, Findings& findings);
/// "1101 '2": a number in base 10 that looks like a binary one, and is shown in base 2. Finds it.
bool findsBinaryLooks(const Situation& situation, Findings& findings);
/// "12'345": an apostrophe between groups of digits. Finds the number, its base, and the line without it.
bool findsApostropheGroups(const Situation& situation, Findings& findings);

}  // namespace calquo
