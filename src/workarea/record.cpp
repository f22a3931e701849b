// The record of an evaluated line; see record.h.
#include "workarea/record.h"

#include <algorithm>

#include "engine/characters.h"
#include "engine/evaluator.h"
#include "engine/keywords.h"
#include "format/value_writer.h"
#include "values/value.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

constexpr char equalsSign = '=';
constexpr std::string_view equalsJoint = " = ";

/// `text` without its trailing blanks and control characters.
std::string_view withoutTrailingBlanks(std::string_view text) {
    std::size_t length = text.size();
    while (length > 0 && static_cast<unsigned char>(text[length - 1]) <= ' ') {
        --length;
    }
    return text.substr(0, length);
}

std::string_view withoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text;
}

/// Puts the value of `expression` and its text into `answer`; throws Except.
void writeResult(Answer& answer, std::string_view expression, NumericFormat format) {
    const Evaluation evaluation = evaluateLine(expression);
    answer.value = evaluation.value;
    answer.outputBase = evaluation.outputBase;
    // Should the writer refuse the value, no place inside the expression is to blame.
    setErrorPosition(static_cast<std::int32_t>(expression.size()));
    appendValue(evaluation.value, format, evaluation.outputBase, answer.text);
}

std::size_t placeInside(std::string_view expression, std::int32_t position) {
    return position < 0 ? expression.size() : std::min(static_cast<std::size_t>(position), expression.size());
}

/// The edit that writes the result after the expression, which takes the first `length` characters of `line`, and
/// carries it on to a new line.
LineEdit editForResult(std::string_view line, std::size_t length, const std::string& result) {
    StyledText written{std::string(equalsJoint) + result, TextStyle::Result};
    StyledText carried{"\n\n" + result, TextStyle::Normal};
    const std::size_t caret = length + written.text.size() + carried.text.size();
    return {true, length, line.size(), {std::move(written), std::move(carried)}, caret, result.size()};
}

/// The edit that ends the line after its first `length` characters and goes on below.
LineEdit editForNewLine(std::string_view line, std::size_t length) {
    return {true, length, line.size(), {{"\n", TextStyle::Normal}}, length + 1};
}

/// Whether a text without blanks around it reads as one name: letters and digits, a letter first, and also what may be
/// a letter in somebody's language.
bool isOneWord(std::string_view text) {
    constexpr char lastOfAscii = '\x7E';
    const auto isForeign = [](char character) {
        return static_cast<unsigned char>(character) > static_cast<unsigned char>(lastOfAscii);
    };
    return !text.empty() && !isDecimalDigit(text.front()) && std::ranges::all_of(text, [&](char character) {
        return isNameCharacter(character) || character == '_' || isForeign(character);
    });
}

/// The edit of a line whose expression has failed.
LineEdit editForError(std::string_view line, std::size_t length, const Answer& answer) {
    LineEdit edit;
    if (isNote(line, answer)) {
        edit.goesToNextLine = true;
        return edit;
    }
    std::string message(equalsJoint);
    appendAnswer(message, answer, ErrorPlace::Hidden);
    return {true, length, line.size(), {{std::move(message), TextStyle::Result}}, answer.position};
}

/// The edit of a line that is evaluated: its error message after the expression, or what `editFor` makes of the
/// expression and its result. None for a line without an expression.
template <typename EditFor>
LineEdit editForAnswer(std::string_view line, NumericFormat format, const EditFor& editFor) {
    const std::string_view expression = expressionOf(line);
    if (expression.empty()) {
        return {};
    }
    Answer answer;
    evaluateInto(answer, expression, format);
    LineEdit edit = answer.failed ? editForError(line, expression.size(), answer) : editFor(expression, answer.text);
    edit.answer = std::move(answer);
    return edit;
}

}  // namespace

std::string_view expressionOf(std::string_view line) {
    const std::size_t equals = line.find(equalsSign);
    if (equals == std::string_view::npos) {
        const std::string_view expression = withoutTrailingBlanks(line);
        return expression.empty() ? line : expression;
    }
    // Deliberate: a single character before "=" is no expression either.
    if (equals <= 1) {
        return line.substr(0, 0);
    }
    return withoutTrailingBlanks(line.substr(0, equals));
}

void evaluateInto(Answer& answer, std::string_view expression, NumericFormat format) {
    answer.text.clear();
    answer.failed = false;
    try {
        writeResult(answer, expression, format);
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
    output += "Error (";
    output += errorMessage(answer.error);
    output += ')';
    if (place == ErrorPlace::Shown) {
        output += " at " + std::to_string(answer.position);
    }
}

void appendRecord(std::string& output, std::string_view expression, const Answer& answer, ErrorPlace place) {
    output += expression;
    if (!answer.failed && answer.text == expression) {
        return;
    }
    output += equalsJoint;
    appendAnswer(output, answer, place);
}

bool isNote(std::string_view line, const Answer& answer) {
    const std::size_t equals = line.find(equalsSign);
    if (!answer.failed || equals == std::string_view::npos) {
        return false;
    }
    const std::string_view name = withoutLeadingBlanks(expressionOf(line));
    const std::string_view words = withoutTrailingBlanks(line.substr(equals + 1));
    const bool isUnknown = answer.error == ErrorCode::UnknownName || lookup(name) == 0;
    return isUnknown && isOneWord(name) && !words.empty() && !isWrittenAnswer(words);
}

LineEdit editAfterEnter(std::string_view line, NumericFormat format) {
    if (line.empty()) {
        return editForNewLine(line, 0);
    }
    return editForAnswer(line, format, [&](std::string_view expression, const std::string& result) {
        return result == expression ? editForNewLine(line, expression.size())
                                    : editForResult(line, expression.size(), result);
    });
}

LineEdit editWithResult(std::string_view line, std::size_t begin, std::size_t end, NumericFormat format) {
    return editForAnswer(line, format, [&](std::string_view, const std::string& result) {
        return LineEdit{true, begin, end, {{result, TextStyle::Normal}}, begin + result.size()};
    });
}

}  // namespace calquo
