// The compiled help, shown by the system's HTML Help control.
#pragma once

#include <string_view>

#include "widgets/handles.h"

namespace calquo {

/// Shows the table of contents and the default topic of the help file in the program's folder, in a window of its own
/// that `owner` owns, or one topic in place of the default. Nothing happens where the system has no help. The control
/// is looked for at the first call only, whatever is found.
/// @param topic a page of the help and a place on it, such as "names.html#sqrt"; the default topic when empty
void showHelp(WindowHandle owner, std::string_view topic = {});

}  // namespace calquo
