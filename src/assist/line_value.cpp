// Reads the results of the sheet back, and evaluates anew for the digits that they leave out.
#include "assist/line_value.h"

#include <cmath>

#include "assist/value_details.h"
#include "assist/value_forms.h"
#include "engine/characters.h"
#include "engine/evaluator.h"
#include "format/value_writer.h"
#include "values/errors.h"
#include "workarea/record.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

std::string_view withoutBlanksAround(std::string_view text) {
    const auto isInk = [](char character) { return static_cast<unsigned char>(character) > ' '; };
    while (!text.empty() && !isInk(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && !isInk(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// An imaginary part so small is what rounding has left, where nothing of it shows.
bool isRest(Real imaginary) {
    constexpr Real largest = 1e-12L;
    return std::fabs(imaginary) < largest;
}

std::optional<Value> evaluated(std::string_view expression) {
    try {
        return evaluateLine(expression).value;
    } catch (const Except&) {
        return std::nullopt;
    }
}

/// "-2 3/4" as the language reads it; any other answer as it is.
std::string readable(std::string_view answer) {
    const std::size_t blank = answer.find(' ');
    if (blank == std::string_view::npos || answer.find('/') == std::string_view::npos || answer.front() == '(') {
        return std::string(answer);
    }
    std::string sum(answer);
    sum[blank] = '+';
    const bool isNegative = sum.front() == '-';
    return isNegative ? "-(" + sum.substr(1) + ')' : sum;
}

std::optional<LineValue> valueWritten(std::string_view answer, std::string_view expression, NumericFormat format) {
    if (!isWrittenAnswer(answer) || answer.starts_with("Error")) {
        return std::nullopt;
    }
    LineValue line{std::string(answer), evaluated(readable(answer))};
    Answer present;
    if (!expression.empty()) {
        evaluateInto(present, expression, format);
        line.value = !present.failed && present.text == answer ? present.value : line.value;
    }
    return line;
}

}  // namespace

std::optional<LineValue> valueOf(std::string_view line, NumericFormat format) {
    std::string_view expression = expressionOf(line);
    if (drawsRandomNumbers(expression)) {
        expression = {};  // another number would come, and others after it
    }
    std::optional<LineValue> found;
    if (const std::size_t equals = line.find('='); equals != std::string_view::npos) {
        found = valueWritten(withoutBlanksAround(line.substr(equals + 1)), expression, format);
    } else if (!expression.empty()) {
        Answer answer;
        evaluateInto(answer, expression, format);
        if (!answer.failed) {
            found = LineValue{answer.text, answer.value};
        }
    }
    if (found && found->value && found->shown.front() != '(' && isRest(found->value->im)) {
        found->value->im = 0;
    }
    return found;
}

std::string textInFull(const LineValue& line) {
    if (!line.value) {
        return line.shown;
    }
    std::string plain = line.shown;
    std::erase(plain, markCharacter(TokenClass::GroupMark));
    if (readsAs(plain, *line.value)) {
        return plain;
    }
    const std::string full = fullText(*line.value);
    return full.empty() ? line.shown : full;
}

}  // namespace calquo
