// Lengths of calendar units in seconds.
#pragma once

#include "values/value.h"

namespace calquo {

constexpr Real secondsOfDay = 86400;
/// The mean year of the Gregorian calendar, 365.2425 days, and its twelfth part.
constexpr Real secondsOfYear = 31556952;
constexpr Real secondsOfMonth = secondsOfYear / 12;

}  // namespace calquo
