// Lines whose form as a whole is not the language's; see line_forms.h.
#include "hints/line_forms.h"

namespace calquo {

bool beginsWithEquals(const Situation& situation, Findings& findings) {
    const std::size_t begin = situation.line.find_first_not_of(" \t");
    if (situation.answer != nullptr || begin == std::string_view::npos || situation.line[begin] != '=') {
        return false;
    }
    const std::size_t inside = situation.line.find_first_not_of("= \t", begin);
    if (inside == std::string_view::npos) {
        return false;
    }
    const std::string_view expression = expressionOf(situation.line.substr(inside));
    Answer answer;
    evaluateInto(answer, expression, situation.settings.format);
    findings[0] = expression;
    return !answer.failed;
}

bool isNoteLine(const Situation& situation, Findings& findings) {
    if (situation.answer == nullptr || !isNote(situation.line, *situation.answer)) {
        return false;
    }
    findings[0] = errorMessage(situation.answer->error);
    return true;
}

}  // namespace calquo
