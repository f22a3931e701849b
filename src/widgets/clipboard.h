// Text on its way to other programs.
#pragma once

#include <string>

#include "widgets/handles.h"

namespace calquo {

/// Puts a text in place of what the clipboard holds, and the same as rich text for programs that prefer it; false where
/// another program keeps it open, or memory is short.
bool copyToClipboard(WindowHandle owner, const std::wstring& text, const std::string& richText = {});

}  // namespace calquo
