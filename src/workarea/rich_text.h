// Rich text (RTF) on its way between a file and the control: what a file must have before it may replace anything, and
// how the control's text becomes one that any program reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calquo {

/// The rich text in the bytes of a file, ready to be put in place of a selection: what follows its last brace is
/// left out, and so is the end of its last paragraph, which would begin another line. Throws FileFault: NotRichText,
/// CutOff, NestedTooDeeply (controls have been seen to crash), TooMuchText where its TextCost is above `mostCost`.
std::string richTextToRead(std::string_view bytes, std::uint64_t mostCost);

/// A rich text in UTF-8 as the control writes it, in pure ASCII: each character beyond it by its number, as all readers
/// understand, and without the NUL character at the end. In a code page the control would write some characters as
/// others that look alike.
std::string richTextToWrite(std::string_view controlText);

}  // namespace calquo
