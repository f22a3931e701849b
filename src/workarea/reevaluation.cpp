// The lines one by one, and what is told about them.
#include "workarea/reevaluation.h"

#include <algorithm>

#include "workarea/record.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

constexpr bool isInk(char character) { return static_cast<unsigned char>(character) > ' '; }

/// Evaluates one line, which begins at `start` of the text.
class LineEvaluation {
public:
    LineEvaluation(Reevaluation& outcome, NumericFormat format) : outcome_(outcome), format_(format) {}

    void take(std::string_view line, std::size_t start) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) {
            return;
        }
        const std::string_view expression = expressionOf(line);
        std::string_view old = line.substr(equals + 1);
        while (!old.empty() && !isInk(old.front())) {
            old.remove_prefix(1);
        }
        while (!old.empty() && !isInk(old.back())) {
            old.remove_suffix(1);
        }
        if (!expression.empty() && isWrittenAnswer(old)) {
            answer(expression, old, start + static_cast<std::size_t>(old.data() - line.data()));
        }
    }

private:
    void answer(std::string_view expression, std::string_view old, std::size_t begin) {
        ++outcome_.evaluated;
        evaluateInto(answer_, expression, format_);
        if (answer_.failed) {
            ++outcome_.failed;
        } else if (answer_.text != old) {
            outcome_.edits.push_back({begin, begin + old.size(), answer_.text});
        }
    }

    Reevaluation& outcome_;
    NumericFormat format_;
    Answer answer_;
};

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return count == 1 ? "1 " + std::string(one) : std::to_string(count) + ' ' + std::string(many);
}

}  // namespace

Reevaluation reevaluate(std::string_view text, NumericFormat format) {
    Reevaluation outcome;
    LineEvaluation lines(outcome, format);
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        lines.take(text.substr(start, end - start), start);
        start = end + 1;
    }
    return outcome;
}

std::size_t positionAfter(const std::vector<ResultEdit>& edits, std::size_t position) {
    std::size_t shifted = position;
    for (const ResultEdit& edit : edits) {
        if (edit.begin >= position) {
            break;
        }
        const std::size_t inside = std::min(position, edit.end) - edit.begin;
        shifted = shifted - inside + (position < edit.end ? std::min(inside, edit.result.size()) : edit.result.size());
    }
    return shifted;
}

std::string hintAbout(const Reevaluation& outcome) {
    if (outcome.evaluated == 0) {
        return "No line has a result.";
    }
    const std::size_t differing = outcome.edits.size();
    std::string hint = "Evaluated " + counted(outcome.evaluated, "line", "lines") + ": ";
    hint += differing == 0 ? "no result differs" : counted(differing, "result differs", "results differ");
    hint += " from what stood there";
    if (outcome.failed != 0) {
        hint += ", and " + counted(outcome.failed, "line has an error and stays", "lines have an error and stay") +
                " as written";
    }
    return hint + (outcome.isWritten ? "." : ". Nothing is changed: the sheet is too long.");
}

}  // namespace calquo
