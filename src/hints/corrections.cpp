// The table of the corrections; what each does is in a file for each idea.
#include "hints/correction.h"

#include <array>

#include "hints/foreign_characters.h"
#include "hints/foreign_expressions.h"
#include "hints/missing_marks.h"
#include "hints/number_forms.h"
#include "hints/quantities.h"

namespace calquo {

std::span<const Correction> corrections() {
    static constexpr auto rows = std::to_array<Correction>({
        // Characters
        {"brackets stand in place of parentheses", "Only round parentheses make groups.", "[2+3]*4",
         "the characters of the language", replaceBrackets},
        {"bars stand around an absolute value", "The absolute value is a function, \"abs\".", "|-5|+2",
         "the functions' table", replaceBars},
        {"an amount has a currency sign", "Amounts have no currency sign (%1).", "$1,234.50*3",
         "the characters of the language", dropCurrencySigns},
        {"the degree sign is used", "The degree sign is written in letters, here \"%2\".", "sin(30°)",
         "the units' table", replaceDegreeSigns},
        {"a printed sign is used that has another form here", "\"%1\" is written \"%2\" here.", "2×3²",
         "the characters of the language", replaceSigns},
        // Numbers
        {"a number has its base in another form", "The base of a number stands before an apostrophe, \"%1\".",
         "0xFF + 1", "the literals of the language", replaceBasePrefixes},
        {"commas separate the items of a list", "Semicolons separate the items of a list; \"%1\" groups digits.",
         "sum(1,2,3)", "the literals of the language", separateItems},
        {"the items of a list stand side by side", "Semicolons separate the items of a list.", "max(3 4)",
         "the lists of the language", separateNeighbours},
        {"the other mark is typed in a number", "\"%1\" is the decimal mark and \"%2\" groups digits.", "2,5*4",
         "the literals of the language", exchangeMarks},
        {"another mark groups digits", "\"%1\" cannot group digits.", "1'234.50*2", "the literals of the language",
         joinMarkedGroups},
        {"a date has points", "There are no dates.", "21.11.2026", "the literals of the language", tellOfDates},
        {"blanks group the digits of a number", "A blank cannot group digits.", "1 234.5*2",
         "the literals of the language", joinGroups},
        {"a fraction follows a whole number", "A number next to a number is an error: add the fraction.", "3 1/2",
         "juxtaposition takes names and groups only", addFractions},
        {"numbers stand in a row", "Numbers in a row are not added by themselves.", "12.5 7.25 100",
         "juxtaposition takes names and groups only", sumNumbers},
        {"an x stands for the multiplication", "The sign for \"times\" is \"*\", not \"%1\".", "3x10^8",
         "the operators of the language", replaceTimesLetter},
        // Quantities
        {"degrees have minutes of arc", "Minutes and seconds of arc are units, too.", "37 deg 30'", "the units' table",
         replaceArcMinutes},
        {"feet and inches have their signs", "Feet and inches are added as units.", "6'2\"", "the units' table",
         replaceFeetAndInches},
        {"a span of time is given by its beginning and its end", "The span is the difference of two times.",
         "12:30 to 17:45", "the units' table", subtractClockTimes},
        {"a time has a colon", "A time is a sum of units.", "1:30 + 0:45", "the units' table", replaceClockTimes},
        {"a ratio has a colon", "A ratio is a division.", "16:9", "the operators of the language", divideRatios},
        {"units and numbers are run together", "A name takes the digits that follow it.", "2h30m",
         "names are of letters and digits", splitGluedUnits},
        {"a quantity has several parts", "The parts of a quantity are added.", "5 lb 3 oz",
         "juxtaposition takes names and groups only", addQuantities},
        {"minutes have the letter of the metre", "\"m\" is the metre here; the minute is \"mn\".", "1h + 30m",
         "the units' table", replaceMetresByMinutes},
        // Words
        {"a result is wanted in another base", "The base of a result is chosen by \"%2\" at the end.", "255 in hex",
         "the directive for the output base", replaceBaseWords},
        {"a word has no counterpart", "%1", "5 volt", "the names of the language", dropMissingWords},
        {"two words stand for one name", "\"%1\" is \"%2\" here.", "square root of 16", "the names of the language",
         joinPhrases},
        {"a percentage is in words", "A percent is a hundredth, and \"of\" is written \"*\".", "20% of 80",
         "% divides by 100", replacePercentWords},
        {"a word stands for an operator", "\"%1\" is written \"%2\".", "5 squared", "the operators of the language",
         replaceOperatorWords},
        {"a word stands for the arrow", "The arrow \"->\" converts, not \"%1\".", "5 km in miles",
         "the operators of the language", replaceArrowWords},
        {"the name of a function stands for a unit", "\"%1\" is a function here; the unit is \"%3\".", "5 min",
         "the functions' table", replaceFunctionsAsUnits},
        {"a function has another name", "\"%1\" %2 here.", "atan2(1; 1)", "the functions' table", replaceCalls},
        {"a power stands between a function and its argument", "%1", "sin^2(30 deg)", "the functions' table",
         movePowers},
        {"a function stands between its arguments", "\"%1\" is no operator: a function does this.", "17 mod 5",
         "the functions' table", replaceInfixFunctions},
        {"a tilde stands for the complement of bits", "The complement is the function \"bNot\".", "~5",
         "the functions' table", replaceComplementSigns},
        {"a unit has another name", "\"%1\" is \"%2\" here.%3", "5 feet", "the units' table", replaceNames},
        // Marks
        {"a power stands right after another operand", "Without \"*\" nothing that follows a number can be raised.",
         "3 m^2", "juxtaposition takes names and groups only", multiplyPowers},
        {"the target of an arrow is a power", "A target of several words needs parentheses.", "5 m -> foot^2",
         "the arrow takes one operand", enclosePowerTargets},
        {"a number follows a group or a name", "Before a number the \"*\" cannot be left out.", "(2+3)4",
         "juxtaposition takes names and groups only", multiplyNumbers},
        {"parentheses follow the name of a number", "\"%1\" takes no parentheses.", "pi()", "the names' table",
         dropEmptyLists},
        {"two signs such as \"!\" follow an operand", "One \"%1\" at a time: a second one needs parentheses.", "3!!",
         "an operand has one postfix operator at most", enclosePostfixes},
        {"a parenthesis is not closed", "A \")\" is missing.", "(2+3*4", "the groups of the language",
         closeParentheses},
    });
    return rows;
}

}  // namespace calquo
