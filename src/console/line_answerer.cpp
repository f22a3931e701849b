// Answers one line at a time; see line_answerer.h.
#include "console/line_answerer.h"

#include "console/json.h"
#include "format/value_writer.h"
#include "hints/hints.h"
#include "workarea/saved_answer.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

std::string_view withoutBlanksAround(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

LineAnswerer::LineAnswerer(const Options& options)
    : format_(options.format()),
      digits_(options.digits),
      writesRecords_(options.record),
      writesJson_(options.json),
      place_(options.position ? ErrorPlace::Shown : ErrorPlace::Hidden) {}

void LineAnswerer::evaluate(std::string_view expression) {
    evaluateInto(latest_, expression, format_);
    if (!digits_ || latest_.failed) {
        return;
    }
    latest_.text.clear();
    if (*digits_ == allDigits) {
        appendValueInFull(latest_.value, format_, latest_.outputBase, latest_.text);
    } else {
        // Beside a real part, the flag leaves out the traces that powers of negative numbers have.
        const NumericFormat kept = latest_.value.im == 0 ? ~field::zeroOut : ~NumericFormat{0};
        appendValue(latest_.value, format_ & kept, latest_.outputBase, latest_.text);
    }
}

bool LineAnswerer::answer(std::string_view line, std::string& output) {
    const std::string_view expression = expressionOf(line);
    latest_.failed = false;
    hasExpression_ = !expression.empty();
    if (hasExpression_) {
        evaluate(expression);
    }
    if (writesJson_) {
        appendJson(output, line, hasExpression_ ? &latest_ : nullptr, hint(line));
    } else if (!hasExpression_) {
        // The work area leaves such a line as it is, and so does its record.
        output += writesRecords_ ? line : std::string_view();
    } else if (writesRecords_ && latest_.failed && isNote(line, latest_)) {
        output += line;
    } else if (writesRecords_) {
        appendRecord(output, expression, latest_, place_);
    } else {
        appendAnswer(output, latest_, place_);
    }
    output += '\n';
    return !latest_.failed;
}

std::string LineAnswerer::hint(std::string_view line) const {
    return hintFor(line, hasExpression_ ? &latest_ : nullptr, {format_});
}

const std::string& LineAnswerer::answerBeside(std::string_view saved) {
    text_.clear();
    appendAnswer(text_, latest_, place_);
    if (!latest_.failed && text_.size() < saved.size()) {
        text_.clear();
        appendValueInFull(latest_.value, defaultFormats[0], latest_.outputBase, text_);
    }
    return text_;
}

bool LineAnswerer::check(std::string_view line, std::string_view place, std::string& output) {
    const std::size_t equals = line.find('=');
    const std::string_view expression = expressionOf(line);
    if (equals == std::string_view::npos || expression.empty()) {
        return true;
    }
    const std::string_view saved = withoutBlanksAround(line.substr(equals + 1));
    if (!isWrittenAnswer(saved)) {
        return true;
    }
    evaluate(expression);
    if (isSameAnswer(saved, latest_)) {
        return true;
    }
    output.append(place).append(": ").append(expression).append(" = ").append(saved);
    output.append(" (now ").append(answerBeside(saved)).append(")\n");
    return false;
}

}  // namespace calquo
