// Asks the rules one after the other; see accepted_lines.h.
#include "hints/accepted_lines.h"

#include <bit>

#include "hints/first_look.h"
#include "hints/rules.h"
#include "hints/trial.h"

namespace calquo {
namespace {

const Rule* firstThatFinds(const Situation& situation, Findings& findings) {
    for (RuleSet rules = rulesToAsk(situation); rules != 0; rules &= rules - 1) {
        const Rule& rule = hintRules()[static_cast<std::size_t>(std::countr_zero(rules))];
        if (rule.finds(situation, findings)) {
            return &rule;
        }
    }
    return nullptr;
}

}  // namespace

std::string hintForAccepted(const Situation& situation) {
    Findings findings;
    const Rule* const rule = firstThatFinds(situation, findings);
    if (rule == nullptr) {
        return {};
    }
    if (rule->writes != 0) {
        std::string& line = findings[rule->writes - 1];
        line = asMeant(line, situation.settings);
    }
    return filledText(rule->say, findings);
}

std::string asMeant(std::string line, const HintSettings& settings) {
    constexpr int mostSteps = 4;
    for (int step = 0; step < mostSteps; ++step) {
        Answer answer;
        const WordsOfLine words(line);
        Findings findings;
        if (!evaluates(line, settings.format, answer)) {
            break;
        }
        const Rule* const rule = firstThatFinds({line, line, words, &answer, settings}, findings);
        if (rule == nullptr || rule->writes == 0) {
            break;
        }
        line = findings[rule->writes - 1];
    }
    return line;
}

std::string filledText(std::string_view say, const Findings& findings) {
    std::string text;
    for (std::size_t i = 0; i < say.size(); ++i) {
        const bool isFinding = say[i] == '%' && i + 1 < say.size() && say[i + 1] >= '1' && say[i + 1] <= '3';
        if (isFinding) {
            text += findings[static_cast<std::size_t>(say[++i] - '1')];
        } else {
            text += say[i];
        }
    }
    return text;
}

}  // namespace calquo
