// What more there is to say about the value of a line than the line shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "values/value.h"

namespace calquo {

/// The value in one more form.
struct Detail {
    char letter;            ///< The key that copies it; no two details of a value share one.
    std::string_view what;  ///< What form it is.
    std::string text;       ///< An expression of that value.
};

/// The forms of a value that are worth showing. Each is an expression that evaluates to the same value to the last bit,
/// under the marks in force and without group marks; of a polar form that is so unless the language has no numbers that
/// give just this value, and then its parts are those that the functions give.
///
/// - the value with the fewest digits that read back, at most 21 to a part
/// - a fraction, where a value that is not whole is one: a denominator below a million, and numerator times denominator
///   below 2^44, so that less than one in a million values is taken for a fraction by chance
/// - bases 2 and 16, for whole numbers below 2^64 in magnitude
/// - polar forms with the angle in radians and in degrees, for complex values
/// - days, hours, minutes and seconds, if `isTime`, for real numbers of a minute and more
std::vector<Detail> detailsOf(const Value& value, bool isTime);

/// Whether an expression names random numbers, or what seeds them: to evaluate it would change those to come.
bool drawsRandomNumbers(std::string_view expression);

/// The details of a line's value: that of its expression, or where the expression fails or is evaluated to something
/// else each time, that of what stands after the "=". None where neither has a value. The value counts as time where
/// the expression names units of time and is proportional to their size.
std::vector<Detail> detailsOfLine(std::string_view line);

}  // namespace calquo
