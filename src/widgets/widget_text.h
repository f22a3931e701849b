// A widget's stored text: a label, and after a vertical bar a description for the tooltip.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

std::string storedText(std::string_view label, std::string_view description);

/// The label, which is also what the system, and with it a program that reads the screen, takes for the widget's text.
std::string_view labelOf(std::string_view storedText);

/// A label of a menu or a dialog without the "&" before the letter that chooses it.
std::string withoutMnemonic(std::string_view label);

/// What a program that reads the screen is to say of a widget in place of its label: the description where the label is
/// not seen (a symbol is drawn for it) or is no word, both where it is one. Empty where the label says it all.
std::string spokenNameOf(std::string_view storedText, bool labelIsSeen);

/// Empty when the text has none.
std::string_view descriptionOf(std::string_view storedText);

}  // namespace calquo
