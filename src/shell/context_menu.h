// The context menu of the work area on the screen.
#pragma once

#include <vector>

#include "shell/sheet_commands.h"
#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

/// Shows entries with their top left corner at `corner`, a point of the screen, until the user has chosen or dismissed
/// them; the choice is posted to `owner` as its command. Raises InternalFault when the system refuses.
void showContextMenu(WindowHandle owner, Point corner, const std::vector<ContextMenuEntry>& entries);

}  // namespace calquo
