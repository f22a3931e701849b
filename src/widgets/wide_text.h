// Text on its way to the system.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// UTF-8 text in the system's UTF-16.
std::wstring wideText(std::string_view text);

}  // namespace calquo
