// The compiled help, shown by the system's HTML Help control.
#pragma once

#include "widgets/handles.h"

namespace calquo {

/// Shows the table of contents and the default topic of the help file in the program's folder, in a window of its own
/// that `owner` owns. Nothing happens where the system has no help. The control is looked for at the first call only,
/// whatever is found.
void showHelp(WindowHandle owner);

}  // namespace calquo
