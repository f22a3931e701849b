// A line that the language refuses, on its way to one that it takes: each correction changes words of it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "hints/words_of_line.h"

namespace calquo {

struct DraftWord {
    WordKind kind;
    std::string text;
    bool afterBlank = false;
    bool settled = false;  ///< Was put there by a correction, and is an operand that no other correction may touch.

    [[nodiscard]] bool is(std::string_view other) const { return text == other; }
    [[nodiscard]] bool isNumber() const { return kind == WordKind::Number; }
    [[nodiscard]] bool isName() const { return kind == WordKind::Name && !settled; }
};

class Draft {
public:
    explicit Draft(const Words& words);

    std::vector<DraftWord> words;

    /// The word at an index; an empty mark beyond both ends, so that neighbours can be asked for.
    [[nodiscard]] const DraftWord& at(std::size_t index) const;

    /// Puts text in place of `count` words from `index` on. Replacing several words, or a text of several, it is
    /// settled.
    void replace(std::size_t index, std::size_t count, std::string text);
    void insert(std::size_t index, std::string_view mark, bool afterBlank = false);
    void remove(std::size_t index, std::size_t count = 1);

    /// Whether the word ends an operand, or begins one.
    [[nodiscard]] bool endsOperand(std::size_t index) const;
    [[nodiscard]] bool beginsOperand(std::size_t index) const;

    /// The "(" whose parentheses the word is inside of; none when it is in none.
    [[nodiscard]] std::size_t openingAround(std::size_t index) const;
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    /// Whether the word is inside the parentheses of a function of several arguments, itself and not in a group there.
    [[nodiscard]] bool isInList(std::size_t index) const;

    /// Past the last word of the operand, or side, that begins or ends at an index: as far as neither a parenthesis, a
    /// semicolon nor one of the marks in `limits` comes.
    [[nodiscard]] std::size_t sideEnd(std::size_t index, std::string_view limits) const;
    /// The first word of the side that ends before an index.
    [[nodiscard]] std::size_t sideBegin(std::size_t index, std::string_view limits) const;

    /// The line as it now is; or some of its words.
    [[nodiscard]] std::string text() const { return text(0, words.size()); }
    [[nodiscard]] std::string text(std::size_t begin, std::size_t end) const;
};

}  // namespace calquo
