// Any line: it is answered or refused at a place of its own, Enter changes nothing but the line, and the value that it
// has is written in a way that reads back as the same.
#include <cstring>

#include "accuracy/lossless.h"
#include "engine/evaluator.h"
#include "format/value_writer.h"
#include "same_value.h"
#include "target.h"
#include "values/errors.h"
#include "workarea/record.h"

namespace calquo {
namespace {

void checkEdit(const LineEdit& edit, const std::string& line) {
    if (!edit.changes) {
        return;
    }
    require(edit.begin <= edit.end && edit.end <= line.size(), "the edit leaves the line");
    std::size_t length = line.size() - (edit.end - edit.begin);
    for (const StyledText& piece : edit.pieces) {
        length += piece.text.size();
    }
    require(edit.caret <= length, "the caret leaves the changed line");
}

void checkReadBack(const std::string& line) {
    try {
        const Value value = evaluateLine(line).value;
        if (isWrittenWithoutLoss(value)) {
            const std::string text = FormatValue(value, losslessWord, losslessBase);
            require(isSameValue(evaluateLine(text).value, value), "the written value reads back as another");
        }
    } catch (const Except&) {
        // The answer has been looked at.
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    const auto word = static_cast<NumericFormat>(reader.number(4));
    std::string line = reader.text();
    std::erase_if(line, [](char character) { return character == '\r' || character == '\n'; });
    Answer answer;
    const std::string_view expression = expressionOf(line);
    evaluateInto(answer, expression, word);
    require(answer.failed ? answer.position <= expression.size() : !answer.text.empty(), "no answer and no place");
    checkEdit(editAfterEnter(line, word), line);
    if (!answer.failed) {
        checkReadBack(std::string(expression));
    }
}

const Target target("lines", check);

}  // namespace
}  // namespace calquo
