// Words and operators that people write elsewhere, in the places of whole expressions.
#pragma once

#include "hints/correction.h"

namespace calquo {

/// "255 in hex", "hex(255)": a result in another base. Finds the word and the base's directive.
bool replaceBaseWords(Draft& draft, Findings& findings);
/// "5 km in mile": a word in place of the arrow. Finds the word.
bool replaceArrowWords(Draft& draft, Findings& findings);
/// "20% of 80", "20% off 80", "5 percent": percentages in words.
bool replacePercentWords(Draft& draft, Findings& findings);
/// "square root of 16", "fl oz": two words for one name. Finds the words and the name.
bool joinPhrases(Draft& draft, Findings& findings);
/// "2 plus 3", "5 squared": operators in words. Finds the word and the operator.
bool replaceOperatorWords(Draft& draft, Findings& findings);
/// "atan2(1; 1)", "sind(30)": functions of other names. Finds the word and what is written for it.
bool replaceCalls(Draft& draft, Findings& findings);
/// "sin^2(30 deg)", "tan^-1(1)": a power of a function, or its inverse. Finds the reason.
bool movePowers(Draft& draft, Findings& findings);
/// "17 mod 5", "17 % 5", "12 and 10", "1 << 4": operators between two operands that are functions here. Finds the
/// operator and the function.
bool replaceInfixFunctions(Draft& draft, Findings& findings);
/// "~5": a sign for the complement of bits.
bool replaceComplementSigns(Draft& draft, Findings& findings);
/// "5 min": the name of a function in the place of a unit. Finds the word, what it is, and the unit.
bool replaceFunctionsAsUnits(Draft& draft, Findings& findings);
/// "5 volt": words without a counterpart that a line can go on without. Finds the reason.
bool dropMissingWords(Draft& draft, Findings& findings);
/// "5 feet", "1 kWh": units and numbers of other names. Finds the word and what is written for it.
bool replaceNames(Draft& draft, Findings& findings);

}  // namespace calquo
