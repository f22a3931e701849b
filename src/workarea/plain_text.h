// Plain text in files: its encodings and line ends. What was read and is written in the same form has the same bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calquo {

enum class TextEncoding : std::uint8_t {
    Utf8,
    Utf8WithMark,  ///< Behind a byte order mark, as the UTF-16 encodings always are.
    Utf16LittleEndian,
    Utf16BigEndian,
    Windows1252,  ///< Takes any bytes; the five that the code page leaves free are control characters.
};

enum class LineEnd : std::uint8_t { CarriageReturnLineFeed, LineFeed, CarriageReturn };

/// How text is written to a file.
struct TextForm {
    TextEncoding encoding = TextEncoding::Utf8;
    LineEnd lineEnd = LineEnd::CarriageReturnLineFeed;

    friend bool operator==(const TextForm&, const TextForm&) = default;
};

struct PlainText {
    std::u16string characters;  ///< Lines end with "\r", whatever they end with in the file.
    TextForm form;
};

/// The text of a file. UTF-8 and UTF-16 go by their byte order marks; bytes without one are UTF-8 where they are valid
/// as such, else Windows-1252. The line end is the one that all lines have; CR LF where they differ or there is none.
/// Throws FileFault: NotText for text with NUL characters, TooMuchText.
PlainText decodePlainText(std::string_view bytes);

/// The bytes of a text, whose lines may end with CR LF, CR or LF. Decoded, they give the same characters again: UTF-8
/// takes the place of a Windows-1252 that lacks a character or would be taken for another encoding, and a text that
/// begins with a byte order mark gets one more. Alone among all characters, half of a surrogate pair becomes U+FFFD in
/// UTF-8.
std::string encodePlainText(std::u16string_view characters, TextForm form);

}  // namespace calquo
