// Powers and roots of negative numbers; see powers.h.
#include "hints/powers.h"

#include <algorithm>

#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

bool isPower(const DraftWord& word) { return word.is("^") || word.is("**"); }

/// Past the operand that begins at an index; the index itself when none does.
std::size_t operandEnd(const Draft& draft, std::size_t index) {
    if (draft.at(index).isNumber()) {
        return index + 1;
    }
    if (draft.at(index).isName()) {
        return operandEnd(draft, index + 1) > index + 1 && draft.at(index + 1).is("(") ? operandEnd(draft, index + 1)
                                                                                       : index + 1;
    }
    if (!draft.at(index).is("(")) {
        return index;
    }
    std::size_t end = draft.sideEnd(index + 1, "");
    while (end < draft.words.size() && !draft.at(end).is(")")) {
        end = draft.sideEnd(end + 1, "");
    }
    return end + 1;
}

bool isOddNumber(std::string_view text) { return isWholeNumber(text) && (text.back() - '0') % 2 == 1; }

/// Whether the words from an index on are these, "#" standing for a whole number, and nothing follows.
bool matches(const Words& words, std::initializer_list<std::string_view> pattern, std::vector<std::string>& numbers) {
    numbers.clear();
    if (words.size() != pattern.size()) {
        return false;
    }
    const auto* wanted = pattern.begin();
    for (const Word& word : words) {
        const bool isHole = *wanted == "#";
        if (isHole ? !word.isNumber() : !(word.is(*wanted) || (word.isName() && sameLetters(word.text, *wanted)))) {
            return false;
        }
        if (isHole) {
            numbers.emplace_back(word.text);
        }
        ++wanted;
    }
    return true;
}

}  // namespace

bool findsSignBeforePower(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    if (std::ranges::none_of(words, [](const Word& word) { return word.is("^") || word.is("**"); })) {
        return false;
    }
    for (std::size_t i = 0; i + 3 < words.size(); ++i) {
        const bool isUnary = words[i].is("-") && (i == 0 || !endsOperand(words[i - 1]));
        if (!isUnary) {
            continue;
        }
        Draft draft(words);
        const std::size_t base = operandEnd(draft, i + 1);
        if (base == i + 1 || !isPower(draft.at(base))) {
            continue;
        }
        std::size_t end = base;
        while (isPower(draft.at(end))) {
            const std::size_t exponent = draft.at(end + 1).is("-") || draft.at(end + 1).is("+") ? end + 2 : end + 1;
            const bool isLast = !isPower(draft.at(operandEnd(draft, exponent)));
            if (isOddNumber(draft.at(exponent).text) && isLast) {
                return false;  // the same either way
            }
            end = operandEnd(draft, exponent);
        }
        findings[0] = draft.text(i, end);
        const std::string power = draft.text(i + 1, end);
        draft.replace(i, end - i, "-(" + power + ")");
        findings[1] = draft.text();
        return hasResult(findings[1]);
    }
    return false;
}

bool findsFractionAsExponent(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 3 < words.size(); ++i) {
        const bool isPowerOfOne = (words[i].is("^") || words[i].is("**")) && words[i + 1].is("1");
        if (isPowerOfOne && words[i + 2].is("/") && words[i + 3].isNumber()) {
            Draft draft(words);
            const std::string fraction = draft.text(i + 1, i + 4);
            draft.replace(i + 1, 3, "(" + fraction + ")");
            findings[0] = draft.text();
            return hasResult(findings[0]);
        }
    }
    return false;
}

bool findsComplexRoot(const Situation& situation, Findings& findings) {
    if (situation.answer == nullptr || situation.answer->value.im == 0) {
        return false;
    }
    const Words& words = situation.words();
    std::vector<std::string> numbers;
    if (matches(words, {"cbrt", "(", "-", "#", ")"}, numbers) || matches(words, {"cbrt", "-", "#"}, numbers)) {
        findings[0] = "-cbrt(" + numbers[0] + ")";
        return true;
    }
    const bool isRoot = matches(words, {"(", "-", "#", ")", "^", "(", "1", "/", "#", ")"}, numbers) ||
                        matches(words, {"-", "#", "^", "(", "1", "/", "#", ")"}, numbers) ||
                        matches(words, {"pow", "(", "-", "#", ";", "1", "/", "#", ")"}, numbers) ||
                        matches(words, {"root", "(", "-", "#", ";", "#", ")"}, numbers);
    if (!isRoot || !isOddNumber(numbers[1])) {
        return false;
    }
    findings[0] = "-root(" + numbers[0] + "; " + numbers[1] + ")";
    return hasResult(findings[0]);
}

}  // namespace calquo
