// Files that are dropped on a window.
#pragma once

#include <cstdint>
#include <string>

#include "widgets/handles.h"

namespace calquo {

/// Lets files be dropped on a window, which is told of them by the system's message.
void acceptFiles(WindowHandle window);

/// The first of the files that a message tells of by its word parameter, with its whole path. Frees what the system
/// holds for the message.
std::wstring takeDroppedFile(std::uintptr_t drop);

}  // namespace calquo
