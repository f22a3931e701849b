// The form of the rules: when something is said, what, an example, and where the rule comes from.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "hints/hints.h"
#include "hints/words_of_line.h"

namespace calquo {

/// A line as the rules see it.
struct Situation {
    std::string_view line;        ///< The whole line, in UTF-8.
    std::string_view expression;  ///< What of it is evaluated.
    const Words& words;           ///< The words of the expression.
    const Answer* answer;         ///< Null where the line has no expression.
    const HintSettings& settings;
};

/// What a rule has found in a line: what its text puts in place of "%1", "%2" and "%3".
using Findings = std::array<std::string, 3>;

/// Asked about lines that have a result, or no expression, in the order of their table.
struct Rule {
    std::string_view when;     ///< Completes "when ...", for the help.
    std::string_view say;      ///< With "%1" to "%3" for the findings. What a person is to write stands in quotes.
    std::string_view example;  ///< A line that it speaks about.
    std::string_view source;   ///< What makes it true: a property of the language, of a table, of the format.
    bool (*finds)(const Situation& situation, Findings& findings);
    std::size_t writes = 0;  ///< The number of the finding that is a line to write instead, from 1 on; 0 for none.
};

}  // namespace calquo
