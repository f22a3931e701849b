// The line that is being evaluated: the tokens at an index, the blanks around them, and places in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/lexer.h"

namespace calquo {

/// An index as values and errors keep it.
constexpr std::int32_t position(std::size_t index) { return static_cast<std::int32_t>(index); }

/// The binary operator that stands at an index, with the blanks around it skipped.
struct Operator {
    TokenClass kind = TokenClass::None;
    std::size_t start = 0;  ///< its first character
    std::size_t end = 0;    ///< where its right operand should begin
};

/// Keeps the latest blanks and operator: many levels of the grammar ask for them at the same index, one after the
/// other.
class LineTokens {
public:
    explicit LineTokens(std::string_view text) : text_(text) {}

    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] bool isAt(TokenClass kind, std::size_t index) const { return tokenLength(kind, text_, index) != 0; }
    [[nodiscard]] char at(std::size_t index) const { return characterAt(text_, index); }

    /// Past the blanks at an index.
    std::size_t skipBlanks(std::size_t index) {
        if (index != blanksStart_) {
            blanksStart_ = index;
            blanksEnd_ = index + blankLength(text_, index);
        }
        return blanksEnd_;
    }

    /// The binary operator at an index, its kind None when there is none.
    Operator readOperator(std::size_t index) {
        if (index != operatorIndex_) {
            operatorIndex_ = index;
            const std::size_t start = skipBlanks(index);
            const auto [kind, length] = readOperatorHere(text_, start);
            operator_ = length == 0 ? Operator{} : Operator{kind, start, skipBlanks(start + length)};
        }
        return operator_;
    }

private:
    std::string_view text_;
    std::size_t blanksStart_ = std::string_view::npos;
    std::size_t blanksEnd_ = 0;
    std::size_t operatorIndex_ = std::string_view::npos;
    Operator operator_;
};

}  // namespace calquo
