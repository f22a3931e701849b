// Rich text (RTF) on its way from the control to a file.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// A rich text in UTF-8 as the control writes it, in pure ASCII: each character beyond it by its number, as all readers
/// understand, and without the NUL character at the end. In a code page the control would write some characters as
/// others that look alike.
std::string richTextToWrite(std::string_view controlText);

}  // namespace calquo
