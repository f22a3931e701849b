// A strict reader of the rich text that a sheet is made of: it knows nothing but what may be in one.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// The characters that a rich text shows, lines ended by "\n", bytes of a code page and halves of surrogate pairs as
/// they are. Reports a fault for whatever is not in this grammar (text is printable ASCII without braces and
/// backslashes):
///
///     document = "{\rtf1\" ("ansi" | "mac" | "pc" | "pca") ["\ansicpg" N] [fonts] [colors] LF { item } "}"
///     fonts    = "{\fonttbl" { "{\f" N "\f" letters ["\fcharset" N] ["\cpg" N] " " { name } ";}" } "}"
///     colors   = "{\colortbl;" { "\red" N "\green" N "\blue" N ";" } "}"
///     item     = text | "\\" | "\{" | "\}" | "\'" hh | word [" "] | LF | "{" { item } "}"   (one group deep)
///
/// where a word is one of a short list with a number in its range, fonts and colours are in their tables, "\u" has a
/// question mark after it, and surrogates come in pairs.
std::u16string shownByStrictReader(std::string_view richText);

}  // namespace calquo
