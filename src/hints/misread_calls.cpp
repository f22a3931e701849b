// The rules for misread calls; see misread_calls.h.
#include "hints/misread_calls.h"

#include <algorithm>
#include <array>

#include "engine/characters.h"
#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

/// A function of one number that has two arguments elsewhere.
struct TwoArguments {
    std::string_view name;
    std::string_view before, between, after;  ///< What is written around the two.
};

constexpr auto twoArguments = std::to_array<TwoArguments>({
    {"log", "logB(", "; ", ")"},
    {"log10", "logB(", "; ", ")"},
    {"ln", "logB(", "; ", ")"},
    {"round", "round(", "*10^", ")"},
    {"sqrt", "root(", "; ", ")"},
});

bool isSmallWholeNumber(const Word& word) {
    return word.isNumber() && isWholeNumber(word.text) && word.text.size() <= 2;
}

bool isPowerOfTen(std::string_view text) {
    return text.size() > 1 && text[0] == '1' && text.find_first_not_of('0', 1) == std::string_view::npos;
}

}  // namespace

bool findsGroupsAsList(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 3 < words.size(); ++i) {
        const bool isList = words[i].keyword != 0 && classOf(words[i].keyword) == ArgumentClass::List;
        if (!isList || !words[i + 1].is("(") || !words[i + 2].isNumber() || !words[i + 3].is(")")) {
            continue;
        }
        std::string items(words[i + 2].text);
        if (items.find(',') == std::string::npos || items.find('\'') != std::string::npos) {
            continue;
        }
        for (std::size_t comma = items.find(','); comma != std::string::npos; comma = items.find(',', comma + 2)) {
            items.replace(comma, 1, "; ");
        }
        Draft draft(words);
        draft.words[i + 2].text = items;
        const bool isGroupMark = markCharacter(TokenClass::GroupMark) == ',';
        findings = {isGroupMark ? "groups digits" : "is the decimal mark", draft.text(), ""};
        return hasResult(findings[1]);
    }
    return false;
}

bool findsComplexArgument(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 5 < words.size(); ++i) {
        const auto row = std::ranges::find_if(twoArguments,
                                              [&](const TwoArguments& entry) { return isNamed(words[i], entry.name); });
        if (row == twoArguments.end() || !words[i + 1].is("(")) {
            continue;
        }
        Draft draft(words);
        const std::size_t middle = draft.sideEnd(i + 2, "");
        if (!draft.at(middle).is(";") || middle + 2 >= words.size() || !isSmallWholeNumber(words[middle + 1]) ||
            !words[middle + 2].is(")")) {
            continue;
        }
        const std::string first = draft.text(i + 2, middle);
        const std::string second = draft.text(middle + 1, middle + 2);
        const bool isSimple = middle == i + 3;
        const bool isRound = row->name == "round";
        std::string call = std::string(row->before) + (isSimple || !isRound ? first : "(" + first + ")") +
                           std::string(row->between) + second + std::string(row->after);
        if (isRound) {
            call += "/10^" + second;
        }
        draft.replace(i, middle + 3 - i, call);
        findings = {std::string(words[i].text), draft.text(), ""};
        return hasResult(findings[1]);
    }
    return false;
}

bool findsQuotientAsRemainder(const Situation& situation, Findings& findings) {
    if (std::ranges::none_of(situation.words(), [](const Word& word) { return isNamed(word, "mod"); })) {
        return false;
    }
    Draft draft(situation.words());
    bool found = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        if (draft.words[i].isName() && sameLetters(draft.words[i].text, "mod")) {
            draft.words[i].text = "rem";
            found = true;
        }
    }
    findings[0] = draft.text();
    return found && hasResult(findings[0]);
}

bool findsLogarithmOfOtherBase(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        const std::size_t argument = words[i + 1].is("(") ? i + 2 : i + 1;
        if (isNamed(words[i], "lg") && argument < words.size() && isPowerOfTen(words[argument].text)) {
            Draft draft(words);
            draft.words[i].text = "log";
            findings[0] = draft.text();
            return true;
        }
    }
    return false;
}

}  // namespace calquo
