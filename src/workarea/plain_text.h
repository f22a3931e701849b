// Plain text in files: its encodings and line ends. What was read and is written in the same form has the same bytes.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace calquo {

enum class TextEncoding : std::uint8_t {
    Utf8,
    Utf8WithMark,  ///< After a byte order mark, as the UTF-16 encodings always are.
    Utf16LittleEndian,
    Utf16BigEndian,
    SystemCodePage,
    Windows1252,
};

/// The bytes that begin a text in an encoding that says so.
struct ByteOrderMark {
    std::string_view bytes;
    TextEncoding encoding;
};
inline constexpr std::array<ByteOrderMark, 3> byteOrderMarks = {{
    {"\xEF\xBB\xBF", TextEncoding::Utf8WithMark},
    {"\xFF\xFE", TextEncoding::Utf16LittleEndian},
    {"\xFE\xFF", TextEncoding::Utf16BigEndian},
}};

enum class LineEnd : std::uint8_t { CarriageReturnLineFeed, LineFeed, CarriageReturn };

/// A code of one or more bytes for a character, from before Unicode.
struct CodePage {
    /// Nothing where the bytes are no text in it.
    std::function<std::optional<std::u16string>(std::string_view bytes)> decode;
    /// Whatever bytes for characters that it lacks: they are decoded again and compared.
    std::function<std::string(std::u16string_view characters)> encode;
};

/// The code page of Western Europe, in which any bytes are a text: the five that it leaves free are control characters.
const CodePage& windows1252();

/// How text is written to a file.
struct TextForm {
    TextEncoding encoding = TextEncoding::Utf8;
    LineEnd lineEnd = LineEnd::CarriageReturnLineFeed;

    friend bool operator==(const TextForm&, const TextForm&) = default;
};

struct PlainText {
    /// Lines end with "\r", whatever they end with in the file, be it a line break of a word processor.
    std::u16string characters;
    TextForm form;
};

/// What reading plain text depends on.
struct PlainTextRules {
    const CodePage& systemCodePage;
    std::uint64_t mostCost;
};

/// Throws FileFault, TooMuchText, where the TextCost of characters is above the most.
void refuseTooMuchText(std::u16string_view characters, std::uint64_t mostCost);

/// The text of a file. UTF-8 and UTF-16 go by their byte order marks; bytes without one are UTF-8 where they are valid
/// as such, else in the system's code page where they are valid there, else Windows-1252. The line end is the one of CR
/// LF, LF and CR that lines have; CR LF where they have several or none. Throws FileFault: NotText for text with NUL
/// characters, TooMuchText where its TextCost is above the most.
PlainText decodePlainText(std::string_view bytes, const PlainTextRules& rules);

/// The bytes of a text, whose lines may end with CR LF, CR or LF. Decoded, they give the same characters again: UTF-8
/// takes the place of a code page that lacks a character or would be taken for another encoding, and a text that begins
/// with a byte order mark gets one more. Alone among all characters, half of a surrogate pair becomes U+FFFD in
/// UTF-8.
std::string encodePlainText(std::u16string_view characters, TextForm form, const CodePage& systemCodePage);

}  // namespace calquo
