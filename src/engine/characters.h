// The characters of the language: one table that the lexer reads and the value writer writes with, and the digit
// values.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace calquo {

/// The classes of tokens, each with its character in the table.
enum class TokenClass : std::uint8_t {
    None,
    DecimalMark,
    GroupMark,
    BaseMark,
    ExponentMark,  ///< the table's character, "e" or "E"
    ListOpen,
    ListClose,
    ListSeparator,
    Blank,
    Tab,
    Equals,
    Plus,
    Minus,  ///< not before ">"
    Times,  ///< not before a second "*"
    Divide,
    Power,  ///< "^" or "**"
    Percent,
    Factorial,
    Arrow,         ///< "->"; the character of its row is not used for matching
    SecondEquals,  ///< "="
    BlankRun,      ///< zero or more blanks and tabs; has no character of its own
};

/// The table: the digits in the order of their values, the underscore, then one character for each class that has one.
constexpr std::size_t firstClassInTable = 63;
extern std::array<char, 83> characterTable;

/// The table's character of a class that has one.
inline char markCharacter(TokenClass tokenClass) {
    return characterTable[firstClassInTable + static_cast<std::size_t>(tokenClass)];
}

/// The class of each character that the table has one for, None for every other. Follows the table.
extern std::array<TokenClass, 256> characterClasses;

inline TokenClass classOfCharacter(char character) { return characterClasses[static_cast<unsigned char>(character)]; }

/// Puts a character into the table for a class. Refused silently, the table staying as it was, when the character
/// already stands anywhere else in the table: a mark can never be a digit, a letter, an operator or the other mark.
void setMarkCharacter(TokenClass tokenClass, char character);

/// Sets both marks at once, so that they can be exchanged. One that is refused stays as it was; when the other has
/// taken its character, both do.
void setMarks(char decimalMark, char groupMark);

constexpr bool isBlank(char character) { return character == ' ' || character == '\t'; }

constexpr bool isDecimalDigit(char character) { return character >= '0' && character <= '9'; }

constexpr bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

constexpr bool isNameCharacter(char character) { return isLetter(character) || isDecimalDigit(character); }

constexpr char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// What a character that is no digit has as its digit value: above every base.
constexpr std::uint32_t notADigit = 255;

/// 0 to 9 for the decimal digits, 10 to 35 for the letters of either case, notADigit for anything else.
constexpr std::uint32_t digitValue(char character) {
    if (isDecimalDigit(character)) {
        return static_cast<std::uint32_t>(character - '0');
    }
    return isLetter(character) ? static_cast<std::uint32_t>(lowerCase(character) - 'a' + 10) : notADigit;
}

/// The digit character of a value of 0 to 35.
inline char digitCharacter(std::uint32_t value) { return characterTable[value]; }

/// From this base on "e" is a digit, and only the table's exponent mark begins an exponent.
constexpr std::uint32_t firstBaseWithDigitE = 15;

/// The character at an index of the line; the character zero, which matches nothing, at its end and beyond.
constexpr char characterAt(std::string_view line, std::size_t index) {
    return index < line.size() ? line[index] : '\0';
}

}  // namespace calquo
