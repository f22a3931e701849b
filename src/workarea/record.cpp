// The record of an evaluated line; see record.h.
#include "workarea/record.h"

#include <algorithm>

#include "engine/evaluator.h"
#include "format/value_writer.h"
#include "values/value.h"

namespace calquo {
namespace {

constexpr char equalsSign = '=';
constexpr std::string_view equalsJoint = " = ";

/// `text` without its trailing blanks and control characters.
std::string_view withoutTrailingBlanks(std::string_view text) {
    std::size_t length = text.size();
    while (length > 0 && static_cast<unsigned char>(text[length - 1]) <= ' ') --length;
    return text.substr(0, length);
}

/// The result text of `expression`; throws Except.
std::string resultText(std::string_view expression, NumericFormat format) {
    const Evaluation evaluation = evaluateLine(expression);
    // Should the writer refuse the value, no place inside the expression is to blame.
    setErrorPosition(static_cast<std::int32_t>(expression.size()));
    const std::uint64_t base = evaluation.outputBase == 10 ? 0 : evaluation.outputBase;
    return FormatValue(evaluation.value, format, base);
}

std::size_t placeInside(std::string_view expression, std::int32_t position) {
    return position < 0 ? expression.size() : std::min(static_cast<std::size_t>(position), expression.size());
}

void appendErrorText(std::string& output, ErrorCode error) {
    output += "Error (";
    output += errorMessage(error);
    output += ')';
}

/// The edit that writes `answer` behind the expression in the first `kept` characters.
LineEdit editForAnswer(std::size_t kept, const Answer& answer) {
    if (answer.failed) {
        StyledText message{std::string(equalsJoint), TextStyle::Result};
        appendErrorText(message.text, answer.error);
        return {true, kept, {std::move(message)}, answer.position};
    }
    StyledText result{std::string(equalsJoint) + answer.text, TextStyle::Result};
    StyledText carried{"\n\n" + answer.text, TextStyle::Normal};
    const std::size_t caret = kept + result.text.size() + carried.text.size();
    return {true, kept, {std::move(result), std::move(carried)}, caret};
}

/// The edit that ends the line after its first `kept` characters and goes on below.
LineEdit editForNewLine(std::size_t kept) { return {true, kept, {{"\n", TextStyle::Normal}}, kept + 1}; }

}  // namespace

std::string_view expressionOf(std::string_view line) {
    const std::size_t equals = line.find(equalsSign);
    if (equals == std::string_view::npos) {
        const std::string_view expression = withoutTrailingBlanks(line);
        return expression.empty() ? line : expression;
    }
    // Deliberate: a single character in front of "=" is no expression either.
    if (equals <= 1) return line.substr(0, 0);
    return withoutTrailingBlanks(line.substr(0, equals));
}

void evaluateInto(Answer& answer, std::string_view expression, NumericFormat format) {
    try {
        answer.text = resultText(expression, format);
        answer.failed = false;
    } catch (const Except& failure) {
        answer.text.clear();
        answer.failed = true;
        answer.error = failure.code;
        answer.position = placeInside(expression, errorPosition());
    }
}

void appendAnswer(std::string& output, const Answer& answer, ErrorPlace place) {
    if (!answer.failed) {
        output += answer.text;
        return;
    }
    appendErrorText(output, answer.error);
    if (place == ErrorPlace::Shown) output += " at " + std::to_string(answer.position);
}

void appendRecord(std::string& output, std::string_view expression, const Answer& answer, ErrorPlace place) {
    output += expression;
    if (!answer.failed && answer.text == expression) return;
    output += equalsJoint;
    appendAnswer(output, answer, place);
}

LineEdit editAfterEnter(std::string_view line, NumericFormat format) {
    if (line.empty()) return editForNewLine(0);
    const std::string_view expression = expressionOf(line);
    if (expression.empty()) return {};
    Answer answer;
    evaluateInto(answer, expression, format);
    if (!answer.failed && answer.text == expression) return editForNewLine(expression.size());
    return editForAnswer(expression.size(), answer);
}

}  // namespace calquo
