// The table of the rules; what each finds is in a file for each idea.
#include "hints/rules.h"

#include <algorithm>

#include "hints/angles.h"
#include "hints/conversions.h"
#include "hints/line_forms.h"
#include "hints/lost_digits.h"
#include "hints/misread_arguments.h"
#include "hints/misread_calls.h"
#include "hints/misread_names.h"
#include "hints/name_facts.h"
#include "hints/percentages.h"
#include "hints/powers.h"

namespace calquo {
namespace {

bool takesOneNumber(std::size_t keyword) { return classOf(keyword) == ArgumentClass::One; }

bool isOddUnit(std::size_t keyword) {
    return std::ranges::any_of(oddUnits(),
                               [&](const OddUnit& unit) { return sameLetters(unit.name, nameOf(keyword)); });
}

bool isScale(std::size_t keyword) {
    const Unit* const unit = unitOf(nameOf(keyword));
    return unit != nullptr && unit->dimension == dimension::temperature;
}

}  // namespace

std::span<const Rule> hintRules() {
    static constexpr auto rules = std::to_array<Rule>({
        {"a line begins with \"=\"", "What is evaluated stands before the \"=\". Write \"%1\".", "=2+3",
         "the expression of a line is its text up to the first \"=\"", beginsWithEquals, 1, "="},
        {"a date is written", "There are no dates: %1 is read as numbers and operators.", "2026-11-21",
         "the operators of the language", findsDate},
        {"a line begins with a letter and \"=\"",
         "There are no variables, and a line with \"%1\" at its start is left as it is.", "x=5",
         "the expression of a line is its text up to the first \"=\"", findsVariable, 0, "="},
        {"a comparison is written",
         "There are no comparisons: what is evaluated ends at the first \"=\", and the result takes the place of the "
         "rest.",
         "3!=2", "the expression of a line is its text up to the first \"=\"", findsComparison, 0, "="},
        {"a unit is asked for after \"=\"", "The arrow \"->\" converts, not \"=\". Write \"%1\".", "5 km = mile",
         "the expression of a line is its text up to the first \"=\"", findsUnitAfterEquals, 1, "="},
        {"the marks of a number have changed places", "\"%1\" is read as %2. Write \"%3\".", "1.234,56*2",
         "the literals of the language", findsExchangedMarks, 3},
        {"an apostrophe groups digits",
         "\"%1\" is a number in base %2. For groups leave the apostrophe out: write \"%3\".", "12'345*2",
         "the literals of the language", findsApostropheGroups, 3, "'"},
        {"a percentage is added or taken away",
         "\"%1\" is %2 here, no share of what stands before it. For that write \"%3\".", "49.90-20%",
         "% divides by 100", findsAddedPercentage, 3, "%"},
        {"a function without parentheses is followed by a unit or a power",
         "Without parentheses \"%1\" takes the one number after it. For all of it write \"%2\".", "sin 30 deg",
         "the grammar of the language", findsShortArgument, 2, "", "", takesOneNumber},
        {"an angle comes out in radians, and degrees were probably meant",
         "The angle is in radians. For \"%1\" write \"%2\".", "aTan(1)", "the functions of angles", findsAngleInRadians,
         2, "", "aSin aCos aTan aSec aCsc aCot"},
        {"a sine, cosine or tangent has a bare number that looks like degrees",
         "\"%1\" takes its angle in radians. With the unit write \"%2\".", "sin(30)", "the functions of angles",
         findsRadiansForDegrees, 2, "", "sin cos tan sec csc cot"},
        {"a negative number is raised", "\"%1\" raises the negative number. To negate the power write \"%2\".", "-2^2",
         "a sign belongs to its number", findsSignBeforePower, 2, "-^"},
        {"an exponent is a fraction without parentheses", "A power comes before a division. For the root write \"%1\".",
         "8^1/3", "^ binds stronger than /", findsFractionAsExponent, 1, "^/"},
        {"an odd root of a negative number is complex",
         "This is the first of several complex roots. For the real one write \"%1\".", "(-8)^(1/3)",
         "powers have their principal value", findsComplexRoot, 1},
        {"\"deg\" stands before a temperature",
         "\"deg\" is an angle; a temperature has the letter alone. Write \"%1\".", "25 deg C -> F", "the units' table",
         findsDegreeOfScale, 1, "", "deg degree"},
        {"an arrow has a target of several words", "The arrow takes one unit; \"%1\" needs parentheses. Write \"%2\".",
         "60 km/hour -> mile/hour", "the arrow binds like * and /", findsLongTarget, 2, ">"},
        {"an arrow follows a sum", "The arrow converts \"%1\" only. For the whole sum write \"%2\".",
         "5 km + 300 m -> km", "the arrow binds like * and /", findsConvertedPart, 2, ">"},
        {"a divisor has something beside it",
         "Only the number after \"/\" divides; what stands beside it multiplies. To divide by both write \"%1\".",
         "100 km / 2 hour", "side by side is multiplied, from left to right", findsDivisorSideBySide, 1, "/"},
        {"\"j\" looks like the imaginary unit", "\"j\" is the joule; the imaginary unit is \"i\". Write \"%1\".",
         "3+4j", "the units' table", findsJouleAsImaginary, 1, "", "j"},
        {"a letter looks like a prefix", "\"%1\" is a unit (%2). For the prefix write \"%3\".", "4.7k*2",
         "the units' table", findsUnitAsPrefix, 3, "", "k m g"},
        {"a unit's name looks like another", "\"%1\" is another unit here (%2). For the usual one write \"%3\".",
         "500 g + 1 kg", "the units' table", findsMisreadUnit, 3, "", "g gal ms"},
        {"\"G\" looks like the constant of gravitation",
         "\"G\" is the acceleration of gravity, 9.80665. The constant of gravitation is \"6.6743e-11\".", "G*2",
         "the units' table", findsGravity, 0, "", "G"},
        {"a unit has another size here than elsewhere", "\"%1\" has another size here. For %2, write \"%3\".",
         "20 gallonLiq -> liter", "the units' table", findsOddUnit, 3, "", "", isOddUnit},
        {"a unit of another kind is asked for",
         "\"%1\" and \"%2\" measure different things: the arrow only divides one by the other.", "5 km -> kg",
         "nothing checks the kinds of units", findsOtherDimension, 0, ">"},
        {"the letter of a temperature stands where a variable would",
         "\"%1\" is a temperature here (%2), and there are no variables: write the value itself.", "2 pi r",
         "the units' table", findsTemperatureAsVariable, 0, "", "", isScale},
        {"a temperature has no arrow",
         "\"%1\" is a temperature (%2): it makes sense only before an arrow. Write, for instance, \"%3\".", "72 F",
         "conversion reads the offset of a scale", findsLoneTemperature, 0, "", "", isScale},
        {"a list has one number with groups", "\",\" %1; semicolons separate items. Write \"%2\".", "sum(100,200,300)",
         "the literals of the language", findsGroupsAsList, 2, "(,"},
        {"a function of one number has two arguments",
         "\"%1\" takes one number, and two make a complex one. For what two mean elsewhere write \"%2\".", "log(8; 2)",
         "two items make a complex number", findsComplexArgument, 2, "(;", "log log10 ln round sqrt"},
        {"a rate of interest has no percent sign", "A rate is a share of 1: %1 is %2 percent. Write \"%3\".",
         "fv(100; 1 year; 5)", "the functions of finance", findsWholeRate, 3, "(;)", "fv pv pmt dur"},
        {"a rate of interest is divided into periods",
         "The rate is that of a year, and the periods have arguments of their own: \"%1\" is too small. Write \"%2\".",
         "pmt(10000; 0; 36 month; 6%/12; month)", "the functions of finance", findsDividedRate, 2, "(;)/",
         "fv pv pmt dur"},
        {"the base or the degree stands before the value", "The arguments are %1. The other way round write \"%2\".",
         "logB(2; 8)", "the functions' table", findsSwappedArguments, 2, "(;)", "logB root"},
        {"all bits are shifted out",
         "A positive number of places shifts to the right, and no bit is left. To the left write \"%1\".",
         "bShift(1; 8)", "the functions' table", findsBitsShiftedOut, 1, "(;)", "bShift"},
        {"a decimal number looks like a binary one",
         "\"%1\" is a number in base 10. The binary number of these digits is written \"2'%1\".", "1101 '2",
         "the literals of the language", findsBinaryLooks, 0, "'"},
        {"\"mod\" looks like the remainder", "\"mod\" is the whole quotient. For the remainder write \"%1\".",
         "mod(17; 5)", "the functions' table", findsQuotientAsRemainder, 1, "", "mod"},
        {"\"lg\" looks like the decimal logarithm", "\"lg\" has the base 2. For base 10 write \"%1\".", "lg(100)",
         "the functions' table", findsLogarithmOfOtherBase, 1, "", "lg"},
        {"a result is shown as 0 and is not", "The result is not 0 but %1: the format shows no more.",
         "1 eVolt -> joule", "the digits of the format", findsHiddenValue},
        {"a result has lost digits that count", "In full, the result is %1: the format shows fewer digits.",
         "99999999.99", "the digits of the format", findsHiddenDigits},
        {"a small result shows few of its digits", "The format shows %2 of this small result, which is %1.",
         "54000/235e6", "the digits of the format", findsFewDigits},
    });
    static_assert(rules.size() <= mostHintRules);
    return rules;
}

}  // namespace calquo
