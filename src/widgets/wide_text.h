// Text on its way to the system.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// UTF-8 text in the system's UTF-16.
std::wstring wideText(std::string_view text);

/// The system's UTF-16 in UTF-8; half of a surrogate pair becomes the replacement character.
std::string utf8Text(std::wstring_view units);

}  // namespace calquo
