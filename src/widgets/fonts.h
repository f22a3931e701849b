// The choice among the fonts that the system has.
#pragma once

#include <span>

namespace calquo {

/// The first of the names whose font is installed; the last when none is.
const wchar_t* installedFont(std::span<const wchar_t* const> names);

}  // namespace calquo
