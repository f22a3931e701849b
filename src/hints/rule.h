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
    const WordsOfLine& splitWords;
    const Answer* answer;  ///< Null where the line has no expression.
    const HintSettings& settings;

    /// The words of the expression.
    [[nodiscard]] const Words& words() const { return splitWords.get(); }
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

    // A cheap first look, for what finds nothing without it; the rule is asked about every other line.

    std::string_view marks = {};  ///< Characters of ASCII that all occur in the line.
    /// Names, with a blank between them, one of which occurs in the expression in whatever case.
    std::string_view names = {};
    bool (*concerns)(std::size_t keyword) = nullptr;  ///< The same, for all names of a kind.
};

}  // namespace calquo
