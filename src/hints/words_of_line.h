// A line taken apart as a person may have meant it, whether or not the language reads it that way.
#pragma once

#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace calquo {

enum class WordKind : std::uint8_t {
    Number,   ///< Digits with marks, base prefix and exponent, well formed or not: "1,234.5e-6", "6'2", "3.1.4".
    Name,     ///< A letter, then letters and digits.
    Mark,     ///< One ASCII character, or one of "->", "**", "//", "<<", ">>".
    Foreign,  ///< A character beyond ASCII.
};

struct Word {
    WordKind kind;
    std::string_view text;
    bool afterBlank = false;  ///< Whether blanks stand before it.

    [[nodiscard]] bool is(std::string_view other) const { return text == other; }
    [[nodiscard]] bool isNumber() const { return kind == WordKind::Number; }
    [[nodiscard]] bool isName() const { return kind == WordKind::Name; }
};

using Words = std::pmr::vector<Word>;

/// Appends the words of a line to `words`, which have their text in the line.
void splitIntoWords(std::string_view line, Words& words);

/// Whether two texts differ in nothing but the case of their ASCII letters.
bool sameLetters(std::string_view a, std::string_view b);

/// Whether a text is of decimal digits alone, and not empty.
bool isWholeNumber(std::string_view text);

}  // namespace calquo
