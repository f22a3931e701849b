// Tokens: whether one of a class stands at an index of the line, and how many characters it takes.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/characters.h"

namespace calquo {

/// Whether blanks and tabs around a sign are counted into its length.
enum class Blanks { Keep, Skip };

/// Number of blanks and tabs at an index.
inline std::size_t blankLength(std::string_view line, std::size_t index) {
    std::size_t end = index;
    while (isBlank(characterAt(line, end))) {
        ++end;
    }
    return end - index;
}

struct OperatorToken {
    TokenClass kind = TokenClass::None;
    std::size_t length = 0;  ///< 0 when no operator stands there
};

/// Reads the binary operator that starts exactly at an index.
inline OperatorToken readOperatorHere(std::string_view line, std::size_t index) {
    const TokenClass kind = classOfCharacter(characterAt(line, index));
    switch (kind) {
        case TokenClass::Plus:
        case TokenClass::Divide:
        case TokenClass::Power:
            return {kind, 1};
        case TokenClass::Minus:
            return characterAt(line, index + 1) == '>' ? OperatorToken{TokenClass::Arrow, 2} : OperatorToken{kind, 1};
        case TokenClass::Times:
            return classOfCharacter(characterAt(line, index + 1)) == TokenClass::Times
                       ? OperatorToken{TokenClass::Power, 2}
                       : OperatorToken{kind, 1};
        default:
            return {};
    }
}

/// Length of a token of the class that starts exactly at an index, 0 when none does.
inline std::size_t tokenLength(TokenClass tokenClass, std::string_view line, std::size_t index) {
    const char character = characterAt(line, index);
    switch (tokenClass) {
        case TokenClass::None:
            return 0;
        case TokenClass::ExponentMark:
            return character == 'e' || character == 'E' || classOfCharacter(character) == tokenClass ? 1 : 0;
        case TokenClass::Minus:
        case TokenClass::Times:
        case TokenClass::Power:
        case TokenClass::Arrow: {
            const OperatorToken found = readOperatorHere(line, index);
            return found.kind == tokenClass ? found.length : 0;
        }
        default:
            return classOfCharacter(character) == tokenClass ? 1 : 0;
    }
}

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
