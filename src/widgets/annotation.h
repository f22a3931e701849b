// Names of windows for programs that read the screen, beside the windows' own texts.
#pragma once

#include <string>

#include "widgets/handles.h"

namespace calquo {

/// Lets programs that read the screen take `name` for the window's, in place of its text. False where the system has no
/// annotations; they then take the text.
bool annotateName(WindowHandle window, const std::wstring& name);

/// Takes the name back, as it must be before the window ends.
void removeAnnotation(WindowHandle window);

}  // namespace calquo
