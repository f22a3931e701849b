// Text on its way to other programs.
#pragma once

#include <string>

#include "widgets/handles.h"

namespace calquo {

/// Puts a text in place of what the clipboard holds; false where another program keeps it open, or memory is short.
bool copyToClipboard(WindowHandle owner, const std::wstring& text);

}  // namespace calquo
