// The rules in their order, and the text of the first that finds something.
#include "hints/hints.h"

#include <algorithm>

#include "hints/rules.h"

namespace calquo {
namespace {

std::string textOf(const Rule& rule, const Findings& findings) {
    std::string text;
    for (std::size_t i = 0; i < rule.say.size(); ++i) {
        if (rule.say[i] == '%' && i + 1 < rule.say.size() && rule.say[i + 1] >= '1' && rule.say[i + 1] <= '3') {
            text += findings[static_cast<std::size_t>(rule.say[++i] - '1')];
        } else {
            text += rule.say[i];
        }
    }
    return text;
}

}  // namespace

std::string hintFor(std::string_view line, const Answer* answer, const HintSettings& settings) {
    const Situation situation{line, expressionOf(line), answer, settings};
    Findings findings;
    const auto rules = hintRules();
    const auto rule = std::ranges::find_if(rules, [&](const Rule& row) { return row.finds(situation, findings); });
    return rule == rules.end() ? std::string() : textOf(*rule, findings);
}

}  // namespace calquo
