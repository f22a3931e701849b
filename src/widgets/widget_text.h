// A widget's stored text: a label, and after a vertical bar a description for the tooltip.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

std::string storedText(std::string_view label, std::string_view description);

/// The label, which is also what the system, and with it a program that reads the screen, takes for the widget's text.
std::string_view labelOf(std::string_view storedText);

/// Empty when the text has none.
std::string_view descriptionOf(std::string_view storedText);

}  // namespace calquo
