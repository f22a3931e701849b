// What a person should be told about an evaluated line: at most one short text, and only where the line probably does
// not mean what its writer thinks.
#pragma once

#include <string>
#include <string_view>

#include "format/numeric_format.h"
#include "workarea/record.h"

namespace calquo {

/// What results depend on, beside the marks and groups of the character table.
struct HintSettings {
    NumericFormat format;
    std::string_view angleUnit = {};  ///< The name of the unit that buttons add to angles; empty when they add none.
};

/// What is said when the program is started for the first time.
inline constexpr std::string_view firstStartHint =
    "Type 2+3 and press Enter. The second button of the title bar opens panels of functions and units, F1 the help.";

/// The hint about a line, in UTF-8 and without a line end or any control character but tabs, those of the line being
/// written as "\x1B"; empty where there is nothing to say, and for lines of more than 2,000 bytes. Nothing is changed:
/// the line may be evaluated again in other words, but the random numbers and the place of the last error stay what
/// they were.
/// @param line the whole line in UTF-8, with what follows the "="
/// @param answer what the line's expression gave; null where the line has none
std::string hintFor(std::string_view line, const Answer* answer, const HintSettings& settings);

}  // namespace calquo
