// The program's title as the system takes it.
#pragma once

#include <string>
#include <string_view>

#include "values/program.h"

namespace calquo {

/// The main window's title and class, and the name of the running program's mutex; plain ASCII.
inline std::wstring wideProgramTitle() {
    constexpr std::string_view title = programTitle;
    return {title.begin(), title.end()};
}

}  // namespace calquo
