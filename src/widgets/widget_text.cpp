// The vertical bar between label and description, and which of the two is said.
#include "widgets/widget_text.h"

#include <algorithm>

namespace calquo {
namespace {

/// Letters, and digits after the first one.
bool isWord(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !text.empty() && isLetter(text.front()) &&
           std::ranges::all_of(text, [&](char c) { return isLetter(c) || isDigit(c); });
}

}  // namespace

std::string storedText(std::string_view label, std::string_view description) {
    return std::string(label) + '|' + std::string(description);
}

std::string_view labelOf(std::string_view storedText) { return storedText.substr(0, storedText.find('|')); }

std::string_view descriptionOf(std::string_view storedText) {
    const std::size_t bar = storedText.find('|');
    return bar == std::string_view::npos ? std::string_view() : storedText.substr(bar + 1);
}

std::string withoutMnemonic(std::string_view label) {
    std::string plain(label);
    std::erase(plain, '&');
    return plain;
}

std::string spokenNameOf(std::string_view storedText, bool labelIsSeen) {
    const std::string_view label = labelOf(storedText);
    std::string name(descriptionOf(storedText));
    const bool saysBoth = labelIsSeen && isWord(label) && !name.empty();
    return saysBoth ? std::string(label) + ", " + name : name;
}

}  // namespace calquo
