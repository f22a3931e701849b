// Rules for names that mean something other than their writer thinks.
#pragma once

#include <span>

#include "hints/rule.h"

namespace calquo {

/// A unit whose size here is not the one that its name has elsewhere, and an expression for that one.
struct OddUnit {
    std::string_view name;
    std::string_view usual;  ///< What people mean by the name.
    std::string_view write;  ///< What has that size here.
};

std::span<const OddUnit> oddUnits();

/// "5 ang": one of the odd units. Finds the name, what is usual, and the line with it.
bool findsOddUnit(const Situation& situation, Findings& findings);
/// "3+4j": the joule in place of the imaginary unit. Finds the line with i.
bool findsJouleAsImaginary(const Situation& situation, Findings& findings);
/// "4.7k", "1.2M", "5G": a unit in place of a prefix. Finds the letter, what it is, and the line with the prefix.
bool findsUnitAsPrefix(const Situation& situation, Findings& findings);
/// "500 g", "500 ms", "5 gal": a unit that has another meaning in this spelling or after a number. Finds the name, what
/// it is, and the line with what is meant.
bool findsMisreadUnit(const Situation& situation, Findings& findings);

/// "G*m": the acceleration of gravity in capitals.
bool findsGravity(const Situation& situation, Findings& findings);

}  // namespace calquo
