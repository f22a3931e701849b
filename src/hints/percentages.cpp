// Percentages that are added or taken away; see percentages.h.
#include "hints/percentages.h"

#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

/// Whether a "+" or "-" at an index has a percentage and nothing else on its right.
bool addsPercentage(const Words& words, std::size_t index) {
    const bool isSum = words[index].is("+") || words[index].is("-");
    if (!isSum || index == 0 || index + 2 >= words.size() || !endsOperand(words[index - 1]) ||
        !words[index + 1].isNumber() || !words[index + 2].is("%")) {
        return false;
    }
    if (index + 3 == words.size()) {
        return true;
    }
    const Word& next = words[index + 3];
    return next.is("+") || next.is("-") || next.is(")") || next.is(";");
}

/// "1+5%" and "100%-20%" mean what they say.
bool isShareItself(const Draft& draft, std::size_t begin, std::size_t end) {
    return draft.at(end - 1).is("%") || (end - begin == 1 && draft.at(begin).is("1"));
}

}  // namespace

bool findsAddedPercentage(const Situation& situation, Findings& findings) {
    bool adds = false;
    for (std::size_t i = 1; i < situation.words().size() && !adds; ++i) {
        adds = addsPercentage(situation.words(), i);
    }
    if (!adds) {
        return false;
    }
    Draft draft(situation.words());
    bool found = false;
    for (std::size_t i = 1; i + 2 < draft.words.size(); ++i) {
        const bool isSum = (draft.at(i).is("+") || draft.at(i).is("-")) && draft.endsOperand(i - 1) &&
                           draft.at(i + 1).isNumber() && draft.at(i + 2).is("%");
        const std::size_t end = isSum ? i + 3 : i;
        const DraftWord& next = draft.at(end);
        if (!isSum || !(end == draft.words.size() || next.is("+") || next.is("-") || next.is(")") || next.is(";"))) {
            continue;
        }
        const std::size_t begin = draft.sideBegin(i, "");
        if (isShareItself(draft, begin, i)) {
            continue;
        }
        const std::string base = draft.text(begin, i);
        const std::string share = draft.text(i + 1, end);
        const bool isSumItself = draft.sideBegin(i, "+-") != begin;
        if (!found) {
            Answer value;
            evaluates(share, situation.settings.format, value);
            findings = {share, value.text, ""};
        }
        draft.replace(begin, end - begin,
                      (isSumItself ? "(" + base + ")" : base) + "*(1" + draft.at(i).text + share + ")");
        i = begin;
        found = true;
    }
    findings[2] = draft.text();
    return found && hasResult(findings[2]);
}

}  // namespace calquo
