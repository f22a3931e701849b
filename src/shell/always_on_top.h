// "Always on Top" in the window's system menu: a choice for this run, which the window itself remembers.
#pragma once

#include <cstdint>

#include "widgets/handles.h"

namespace calquo {

/// Adds the entry to the system menu of a window, before those that close it.
void addAlwaysOnTop(WindowHandle window);

/// Carries out an entry of the system menu and moves its mark; false for an entry of another command.
bool runAlwaysOnTop(WindowHandle window, std::uint16_t command);

}  // namespace calquo
