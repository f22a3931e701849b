// The one way of rich text into a sheet, wherever it comes from: a list of what is let through.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "workarea/rich_text_writer.h"

namespace calquo {

/// What becomes of the end of the last line when nothing follows it.
enum class LastLineEnd : std::uint8_t {
    Kept,
    Dropped,  ///< For text that takes the place of a selection: it would begin another line.
};

/// What becomes of the colours of characters, and of those behind them, each as CharacterFormat has it; they stay where
/// nothing is said.
struct ColorChange {
    std::function<std::int32_t(std::int32_t)> ofCharacters;
    std::function<std::int32_t(std::int32_t)> behindThem;
};

/// A rich text that shows the same characters as the one in `bytes` and is made of these things alone:
///
/// - lines, ended by \par in place of every word and character that breaks a line, and tabs, also between the cells of
///   a table; each character of ASCII as itself, each byte of a code page as \'hh, any other by \uN?, where surrogates
///   come in pairs;
/// - fonts (name, family, character set), sizes, bold, italic, underlined, struck out, raised and lowered characters,
///   colours of characters and of their background; alignment and indents of paragraphs;
/// - at its head the character set, and the tables of the fonts and colours that are in use.
///
/// Pictures, objects, instructions of fields, hidden text, styles, headers, and all else go without a word; nesting may
/// be as deep as it likes. Groups stand in one another at most two deep in the result, apart from its tables.
/// What comes out passes unchanged: clean(clean(x)) is clean(x) where the last line end is kept. With a `usual` look
/// the text says it at its beginning, so that nothing depends on what it is put into. Takes time and memory in
/// proportion to the length.
///
/// Throws FileFault: NotRichText, CutOff where the last brace is missing, TooMuchText where the TextCost of the shown
/// characters is above `mostCost`. What follows the last brace is left out.
std::string cleanRichText(std::string_view bytes, std::uint64_t mostCost, LastLineEnd lastLineEnd,
                          const ColorChange& colors = {}, const UsualLook* usual = nullptr);

}  // namespace calquo
