// The form of the corrections: what people write elsewhere, and what makes a line of the language of it.
#pragma once

#include <span>
#include <string_view>

#include "hints/draft.h"
#include "hints/rule.h"

namespace calquo {

/// Asked only about lines that the language refuses, one after the other, each about the line as those before it have
/// left it.
struct Correction {
    std::string_view when;     ///< Completes "when ...", for the help.
    std::string_view say;      ///< With "%1" to "%3" for the findings: why the line was refused, as a sentence.
    std::string_view example;  ///< A line that it corrects.
    std::string_view source;   ///< What makes it true.
    bool (*corrects)(Draft& draft, Findings& findings);
};

/// All corrections in the order in which they are made.
std::span<const Correction> corrections();

}  // namespace calquo
