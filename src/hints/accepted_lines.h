// What is said about a line that the language takes, and that its writer may have meant otherwise.
#pragma once

#include <string>
#include <string_view>

#include "hints/rule.h"

namespace calquo {

/// The text of the first rule that finds something; empty when none does.
std::string hintForAccepted(const Situation& situation);

/// A line that has a result, changed to what all rules together would have one write.
std::string asMeant(std::string line, const HintSettings& settings);

/// A rule's text with its findings put in.
std::string filledText(std::string_view say, const Findings& findings);

}  // namespace calquo
