// What text means that is put in right after a result which has just been carried on to a new line.
#pragma once

#include <string_view>

namespace calquo {

/// Whether text begins an operand, and with it a new expression in the place of the carried result: with a digit, a
/// letter of any script, the decimal mark in force, a parenthesis that opens, a root or a currency sign. Everything
/// else goes on from the result: operators, blanks, ";", ")". UTF-16 units, as the control has them.
bool beginsOperand(std::wstring_view text);

}  // namespace calquo
