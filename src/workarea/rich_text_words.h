// The control words of rich text that mean something to a sheet.
#pragma once

#include <cstdint>
#include <string_view>

namespace calquo {

/// What a control word does; `value` of its row tells the words of a kind apart.
enum class WordKind : std::uint8_t {
    Unknown,
    Character,  ///< Stands for the character `value`.
    LineEnd,
    CellEnd,
    NestedRowEnd,  ///< A line end that stands in a group with what else is said of the row.
    UnicodeCharacter,
    UnicodeFallback,  ///< How many characters after each one stand for it where Unicode is not known.
    Font,
    FontSize,
    Color,
    Background,
    Bold,
    Italic,
    Underlined,  ///< With a `value` of 0 the opposite.
    StruckOut,
    ScriptPlace,  ///< `value` is a Script.
    Hidden,
    Deleted,
    PlainCharacters,
    PlainParagraph,
    Alignment,  ///< `value` is the character of ParagraphFormat.
    LeftIndent,
    RightIndent,
    FirstLineIndent,
    CharacterSet,
    CodePage,
    DefaultFont,
    FontTable,
    ColorTable,
    FontFamily,
    FontCharset,
    FontCodePage,
    Red,
    Green,
    Blue,
    Dropped,  ///< The rest of its group holds what no sheet is made of.
    Picture,  ///< The same, and bytes may follow that are no tokens.
    Bytes,
};

struct WordMeaning {
    WordKind kind = WordKind::Unknown;
    std::int32_t value = 0;
};

/// The meaning of a control word, given without its backslash.
WordMeaning meaningOf(std::string_view word);

}  // namespace calquo
