// Keys for the dialogs of a program under test.
#pragma once

#include "widgets/windows_api.h"

namespace calquo {

/// Serves messages until none has come for a while: the display passes the focus on in its own time.
void settle();

/// Presses a key where the focus is, and serves what comes of it.
void press(WPARAM key);

/// The window that has the focus once all has settled.
HWND settledFocus();

}  // namespace calquo
