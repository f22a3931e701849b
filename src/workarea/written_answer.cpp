// The reader of answers; see written_answer.h.
#include "workarea/written_answer.h"

#include <algorithm>
#include <string>

#include "engine/characters.h"
#include "engine/number_literal.h"
#include "values/errors.h"

namespace calquo {
namespace {

bool isInk(char character) { return static_cast<unsigned char>(character) > ' '; }

std::string_view withoutBlanksAround(std::string_view text) {
    const auto* const begin = std::ranges::find_if(text, isInk);
    const auto* end = text.end();
    while (end != begin && !isInk(end[-1])) {
        --end;
    }
    return {begin, end};
}

/// Takes an answer apart from its start; each call steps over what it names, or stays where it is.
class AnswerReader {
public:
    explicit AnswerReader(std::string_view text) : text_(text) {}

    bool isAtEnd() const { return place_ == text_.size(); }

    bool take(std::string_view word) {
        const bool found = text_.substr(place_).starts_with(word);
        place_ += found ? word.size() : 0;
        return found;
    }
    bool take(TokenClass mark) {
        const char character = markCharacter(mark);
        return take({&character, 1});
    }
    bool takeLiteral() {
        try {
            Real number = 0;
            const std::size_t length = readNumber(text_, place_, number);
            place_ += length;
            return length != 0;
        } catch (const Except&) {
            return false;  // a literal with a mistake in it
        }
    }

    bool takeValue() {
        if (!take(TokenClass::ListOpen)) {
            return takeReal();
        }
        return takeReal() && take(TokenClass::ListSeparator) && take(" ") && takeReal() && take(TokenClass::ListClose);
    }

    bool takeError() {
        if (!take("Error (") || !takeMessage() || !take(")")) {
            return false;
        }
        return isAtEnd() || (take(" at ") && takeLiteral());
    }

private:
    bool takeReal() {
        if (take("qNaN") || take("sNaN") || take("NaN")) {
            return true;
        }
        if (!take(TokenClass::Minus)) {
            take(TokenClass::Plus);
        }
        return take("inf") || takeNumber();
    }

    /// "2.5", "3/4" or "2 3/4".
    bool takeNumber() {
        if (!takeLiteral()) {
            return false;
        }
        const bool hasWholePart = take(" ");
        if (hasWholePart && !takeLiteral()) {
            return false;
        }
        return take(TokenClass::Divide) ? takeLiteral() : !hasWholePart;
    }

    bool takeMessage() {
        for (auto code = ErrorCode::InvalidExpression; code <= ErrorCode::DivisionByZero;
             code = static_cast<ErrorCode>(static_cast<std::uint32_t>(code) + 1)) {
            const std::string_view message = errorMessage(code);
            if (text_.substr(place_).starts_with(std::string(message) + ')')) {
                return take(message);
            }
        }
        return false;
    }

    std::string_view text_;
    std::size_t place_ = 0;
};

}  // namespace

bool isWrittenAnswer(std::string_view text) {
    const std::string_view answer = withoutBlanksAround(text);
    AnswerReader value(answer);
    if (value.takeValue() && value.isAtEnd()) {
        return true;
    }
    AnswerReader error(answer);
    return error.takeError() && error.isAtEnd();
}

}  // namespace calquo
