// Tokens: whether one of a class stands at an index of the line, and how many characters it takes.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/characters.h"

namespace calquo {

/// Whether blanks and tabs around a token are counted into its length.
enum class Blanks { Keep, Skip };

/// Number of blanks and tabs at an index.
inline std::size_t blankLength(std::string_view line, std::size_t index) {
    std::size_t end = index;
    while (isBlank(characterAt(line, end))) {
        ++end;
    }
    return end - index;
}

/// Length of a token of the class that starts exactly at an index, 0 when none does.
inline std::size_t tokenLengthHere(TokenClass tokenClass, std::string_view line, std::size_t index) {
    const char character = characterAt(line, index);
    const auto matches = [&](TokenClass wanted) -> std::size_t {
        return character == markCharacter(wanted) && character != '\0' ? 1 : 0;
    };
    switch (tokenClass) {
        case TokenClass::None:
        case TokenClass::BlankRun:
            return 0;
        case TokenClass::ExponentMark:
            return character == 'e' || character == 'E' ? 1 : matches(TokenClass::ExponentMark);
        case TokenClass::Minus:
            return characterAt(line, index + 1) == '>' ? 0 : matches(TokenClass::Minus);
        case TokenClass::Times:
            return characterAt(line, index + 1) == markCharacter(TokenClass::Times) ? 0 : matches(TokenClass::Times);
        case TokenClass::Power:
            return matches(TokenClass::Times) != 0 && characterAt(line, index + 1) == character
                       ? 2
                       : matches(TokenClass::Power);
        case TokenClass::Arrow:
            return matches(TokenClass::Minus) != 0 && characterAt(line, index + 1) == '>' ? 2 : 0;
        case TokenClass::SecondEquals:
            return matches(TokenClass::Equals);
        default:
            return matches(tokenClass);
    }
}

/// Number of characters of a token of the class that starts at an index, 0 when none does. With Blanks::Skip the blanks
/// before and after the token count into the length. A BlankRun is only ever found with Blanks::Skip.
std::size_t tokenLength(TokenClass tokenClass, std::string_view line, std::size_t index, Blanks blanks);

struct Sign {
    int factor = 1;          ///< -1 for a minus
    std::size_t length = 0;  ///< 0 when no sign stands there
};

/// Reads one "+" or "-".
Sign readSign(std::string_view line, std::size_t index, Blanks blanks);

struct BasePrefix {
    std::uint32_t base = 10;
    std::size_t length = 0;  ///< 0 when no prefix stands there
};

/// Reads one or two decimal digits directly followed by the base mark. Raises 4 ("wrong numeric base") at the base mark
/// for a base outside 2 to 36.
BasePrefix readBasePrefix(std::string_view line, std::size_t index);

struct OutputBase {
    std::uint32_t base = 0;  ///< 0 when the line asks for none
    std::size_t length = 0;
};

/// Reads the directive that asks for an output base at the start of a line: the base mark, a decimal whole number and
/// at least one blank. Raises 4 at the directive for a base outside 2 to 36.
OutputBase readOutputBaseDirective(std::string_view line, std::size_t index);

/// Reads the same directive as a suffix: at least one blank, the base mark and a whole number, at the end of the line.
/// Raises 4 at the base mark for a base outside 2 to 36.
OutputBase readOutputBaseSuffix(std::string_view line, std::size_t index);

/// Longest name that is looked at.
constexpr std::size_t longestName = 80;

/// Length of the name at an index: a letter, then letters and digits; 0 when no letter stands there. Raises 20 ("too
/// long") just past the longest allowed name.
std::size_t nameLength(std::string_view line, std::size_t index);

}  // namespace calquo
