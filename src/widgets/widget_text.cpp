// The vertical bar.
#include "widgets/widget_text.h"

namespace calquo {

std::string storedText(std::string_view label, std::string_view description) {
    return std::string(label) + '|' + std::string(description);
}

std::string_view labelOf(std::string_view storedText) { return storedText.substr(0, storedText.find('|')); }

std::string_view descriptionOf(std::string_view storedText) {
    const std::size_t bar = storedText.find('|');
    return bar == std::string_view::npos ? std::string_view() : storedText.substr(bar + 1);
}

}  // namespace calquo
