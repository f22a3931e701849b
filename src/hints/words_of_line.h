// A line taken apart as a person may have meant it, whether or not the language reads it that way.
#pragma once

#include <array>
#include <cstddef>
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
    std::size_t keyword = 0;  ///< The number of a name of the language; 0 for all else.

    [[nodiscard]] bool is(std::string_view other) const { return text == other; }
    [[nodiscard]] bool isNumber() const { return kind == WordKind::Number; }
    [[nodiscard]] bool isName() const { return kind == WordKind::Name; }
};

using Words = std::pmr::vector<Word>;

/// Appends the words of a line to `words`, which have their text in the line.
void splitIntoWords(std::string_view line, Words& words);

/// The words of a line, which is split when they are first asked for: many lines need no look at them.
class WordsOfLine {
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the storage of the words needs no value.
    explicit WordsOfLine(std::string_view line) : line_(line) {}
    WordsOfLine(const WordsOfLine&) = delete;
    WordsOfLine& operator=(const WordsOfLine&) = delete;

    const Words& get() const {
        if (words_.capacity() == 0) {
            words_.reserve(wordsInside);
            splitIntoWords(line_, words_);
        }
        return words_;
    }

private:
    // The words of short lines stay inside, on the stack.
    static constexpr std::size_t wordsInside = 32;

    std::string_view line_;
    alignas(Word) mutable std::array<std::byte, 2 * wordsInside * sizeof(Word)> storage_;
    mutable std::pmr::monotonic_buffer_resource memory_{storage_.data(), storage_.size()};
    mutable Words words_{&memory_};
};

/// Whether two texts differ in nothing but the case of their ASCII letters.
bool sameLetters(std::string_view a, std::string_view b);

/// Whether a text is of decimal digits alone, and not empty.
bool isWholeNumber(std::string_view text);

}  // namespace calquo
