// The characters that web pages and word processors put in place of the language's own.
#pragma once

#include <cstdint>
#include <string>

namespace calquo {

/// How a character of pasted text is taken.
enum class PastedKind : std::uint8_t {
    Itself,
    Text,          ///< For its text, wherever it stands; nothing where that is empty.
    NoBreakBlank,  ///< For a blank, or for nothing between the groups of a number.
    Dash,          ///< For a minus before an operand.
    Dot,           ///< For a multiplication sign between operands.
    Superscript,   ///< For a digit or sign of an exponent, or a digit of a name.
    Name,          ///< For a name, apart from the names and numbers beside it.
    Degrees,       ///< For the name of the unit, together with the number before it.
    Fraction,      ///< For a fraction, together with the number before it.
};

struct PastedCharacter {
    PastedKind kind = PastedKind::Itself;
    std::string text;  ///< In the language's own characters; empty for Itself.
};

/// How a character is taken. Takes time that does not depend on the character.
PastedCharacter pastedCharacter(char32_t code);

}  // namespace calquo
