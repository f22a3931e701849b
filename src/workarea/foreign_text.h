// Text that other programs offer, on the clipboard or in whatever is dragged over the window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "widgets/handles.h"

namespace calquo {

/// One text, in either or both of two forms.
struct ForeignText {
    std::u16string plain;
    std::string rich;  ///< Empty where nobody wants it or there is none.
};

/// Whether the looks of the text are wanted.
enum class ForeignForm : std::uint8_t { Plain, Rich };

/// The text on the clipboard, or nothing. One form that is wanted and missing is made up for by the other. Waits a
/// little for a program that has the clipboard open. Throws FileFault, TooLarge, for more than a file may have.
ForeignText clipboardText(WindowHandle window, ForeignForm form);

/// The same from a source that gives the memory of a format by its number in the system, or null.
ForeignText foreignText(const std::function<void*(std::uint32_t format)>& memoryOf, ForeignForm form);

/// The system's numbers of the formats in which text is taken: UTF-16, and rich text.
std::uint32_t plainTextFormat();
std::uint32_t richTextFormat();

}  // namespace calquo
