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
    Arrow,  ///< "->"; the character of its row is not used for matching
};

/// What the two marks are until people choose others.
constexpr char defaultDecimalMark = '.';
constexpr char defaultGroupMark = ',';

/// The digits between two group marks: what everybody writes, and what people may choose for results.
constexpr std::uint32_t thousandsGroup = 3;
constexpr std::uint32_t shortestGroup = 2;
constexpr std::uint32_t longestGroup = 8;

/// The characters of the language, the class of each, and the lengths of the groups that the group mark makes. There is
/// one table: only setMarks changes its characters, and only setGroupLengths the lengths.
class CharacterTable {
public:
    consteval CharacterTable();
    CharacterTable(const CharacterTable&) = delete;
    CharacterTable& operator=(const CharacterTable&) = delete;

    [[nodiscard]] char digit(std::uint32_t value) const { return characters_[value]; }
    [[nodiscard]] char mark(TokenClass tokenClass) const { return characters_[indexOf(tokenClass)]; }
    /// None for a character that is of no class.
    [[nodiscard]] TokenClass classOf(char character) const { return classes_[static_cast<unsigned char>(character)]; }
    /// Whether a character may become one of the two marks: no other use of the language for it stands in the table.
    [[nodiscard]] bool isFreeForMarks(char character) const;
    /// Whether so many digits may stand between two group marks of a literal.
    [[nodiscard]] bool allowsGroup(std::size_t length, bool hasBasePrefix) const {
        return length == thousandsGroup || (length >= shortestGroup_ && length <= longestGroup_) ||
               (hasBasePrefix && length >= shortestGroup && length <= longestGroup);
    }

private:
    friend void setMarks(char decimalMark, char groupMark);
    friend void setGroupLengths(std::uint32_t shortest, std::uint32_t longest);

    /// After the 62 digits of both cases and the underscore.
    static constexpr std::size_t firstClass = 63;
    static constexpr std::size_t indexOf(TokenClass tokenClass) {
        return firstClass + static_cast<std::size_t>(tokenClass);
    }
    void setMark(TokenClass tokenClass, char character);

    std::array<char, 83> characters_{};  // the digits by their values, "_", a character for each class, ">"
    std::array<TokenClass, 256> classes_{};
    std::uint32_t shortestGroup_ = thousandsGroup;
    std::uint32_t longestGroup_ = thousandsGroup;
};

extern constinit CharacterTable characterTable;

/// The table's character of a class that has one.
inline char markCharacter(TokenClass tokenClass) { return characterTable.mark(tokenClass); }

/// The class of a character that the table has one for, None for every other.
inline TokenClass classOfCharacter(char character) { return characterTable.classOf(character); }

/// Sets both marks at once, so that they can be exchanged. One that has another use in the language stays as it was; so
/// does the group mark when it is to be the same as the decimal mark, and both do when the decimal mark has taken its
/// character.
void setMarks(char decimalMark, char groupMark);

/// Lets literals have groups of any length from the shortest to the longest, beside those of 3 digits. After a base
/// prefix, groups of any length that people may choose are read in any case.
void setGroupLengths(std::uint32_t shortest, std::uint32_t longest);

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
inline char digitCharacter(std::uint32_t value) { return characterTable.digit(value); }

/// From this base on "e" is a digit, and only the table's exponent mark begins an exponent.
constexpr std::uint32_t firstBaseWithDigitE = 15;

/// The character at an index of the line; the character zero, which matches nothing, at its end and beyond.
constexpr char characterAt(std::string_view line, std::size_t index) {
    return index < line.size() ? line[index] : '\0';
}

}  // namespace calquo
