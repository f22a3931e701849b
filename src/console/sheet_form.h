// Which form a sheet has, by its first bytes, and its text where that is not simply what stands in the file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calquo {

enum class SheetForm : std::uint8_t {
    Unknown,  ///< More bytes are needed to tell.
    Plain,
    PlainWithMark,  ///< UTF-8 after a byte order mark.
    Utf16,
    RichText,
};

/// The form of a sheet that begins with these bytes.
SheetForm sheetFormOf(std::string_view beginning);

/// How many bytes come before the text of a plain sheet.
std::size_t markLength(SheetForm form);

/// The text of a sheet in UTF-16 or rich text, in UTF-8, its lines ended by "\n". Throws FileFault.
std::string textOfSheet(std::string_view bytes, SheetForm form);

}  // namespace calquo
