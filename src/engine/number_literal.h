// Numeric literals: "1,234.5e-6", "16'1F", "2'0.101": what stands where, and which errors a malformed one raises.
#pragma once

#include <string_view>

#include "values/value.h"

namespace calquo {

/// Reads the literal at an index of the line and returns its length; 0, without touching the number, when none stands
/// there.
///
///     literal  = [prefix] digits [mark [digits]] [exponent]  |  [prefix] mark digits [exponent]
///     prefix   = one or two decimal digits and the base mark
///     digits   = digits below the base, in which group marks may make groups
///     exponent = exponent mark, optional sign, digits below the base; a power of the base
///
/// Groups are counted from the decimal mark outwards. Those of the whole part and of the fraction have one length,
/// which the character table allows; only the outermost may be shorter, and the first does not begin with a 0. So a
/// comma in the place of a decimal point or of a semicolon is an error, and no factor of ten.
///
/// The exponent mark is "@", and below base 15 also "e" and "E". After a literal without prefix a name of the keyword
/// table may follow at once ("3km"); any other letter is a digit outside the base, and so is an "e" after an exponent.
///
/// Raises 3 past a digit outside the base, 4 for a wrong base, 6 past a literal above the finite range, 7 at a second
/// decimal mark, 8 at the literal's first group mark where one makes no groups, 10 where digits are missing after a
/// prefix or around a lone decimal mark, 17 where the exponent's digits are missing.
std::size_t readNumber(std::string_view line, std::size_t index, Real& number);

}  // namespace calquo
