// Tries the marks that may be missing; see missing_marks.h.
#include "hints/missing_marks.h"

#include "engine/keywords.h"

namespace calquo {
namespace {

bool isFunction(const DraftWord& word) {
    return word.isName() && lookup(word.text) != 0 && classOf(lookup(word.text)) != ArgumentClass::None;
}

/// The first word of the operand that ends before an index: a name, a group, a call.
std::size_t operandBegin(const Draft& draft, std::size_t end) {
    std::size_t begin = end - 1;
    if (draft.at(begin).is(")")) {
        begin = draft.openingAround(begin);
        if (begin == Draft::none) {
            return end;
        }
    }
    return begin > 0 && draft.at(begin).is("(") && isFunction(draft.at(begin - 1)) ? begin - 1 : begin;
}

bool isPower(const DraftWord& word) { return word.is("^") || word.is("**"); }

/// "m" and "2" as the one name "m2", where there is such a name.
bool joinPower(Draft& draft, std::size_t power) {
    const std::string name = draft.at(power - 1).text + draft.at(power + 1).text;
    if (!draft.at(power - 1).isName() || !draft.at(power + 1).isNumber() || lookup(name) == 0) {
        return false;
    }
    draft.replace(power - 1, 3, name);
    return true;
}

}  // namespace

bool multiplyPowers(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 2; i < draft.words.size(); ++i) {
        if (!isPower(draft.words[i]) || draft.at(i - 1).isNumber()) {
            continue;
        }
        const std::size_t begin = operandBegin(draft, i);
        if (begin == 0 || begin >= i || !draft.endsOperand(begin - 1) || isFunction(draft.at(begin - 1))) {
            continue;
        }
        findings[0] = changed ? findings[0] : draft.text(begin, i);
        changed = true;
        if (!joinPower(draft, i)) {
            draft.words[begin].afterBlank = false;
            draft.insert(begin, "*");
            ++i;
        }
    }
    return changed;
}

bool enclosePowerTargets(Draft& draft, Findings& findings) {
    for (std::size_t i = 2; i + 1 < draft.words.size(); ++i) {
        if (!isPower(draft.words[i]) || !draft.at(i - 2).is("->")) {
            continue;
        }
        findings[0] = draft.text(i - 1, i + 2);
        if (!joinPower(draft, i)) {
            draft.replace(i - 1, 3, "(" + findings[0] + ")");
        }
        return true;
    }
    return false;
}

bool multiplyNumbers(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        const DraftWord& before = draft.words[i - 1];
        const bool isOperand = before.is(")") || (before.kind == WordKind::Name && !isFunction(before));
        if (draft.words[i].isNumber() && isOperand) {
            findings[0] = changed ? findings[0] : draft.words[i].text;
            draft.words[i].afterBlank = false;
            draft.insert(i, "*");
            changed = true;
        }
    }
    return changed;
}

bool dropEmptyLists(Draft& draft, Findings& findings) {
    for (std::size_t i = 0; i + 2 < draft.words.size(); ++i) {
        if (draft.words[i].isName() && !isFunction(draft.words[i]) && draft.words[i + 1].is("(") &&
            draft.words[i + 2].is(")")) {
            findings[0] = draft.words[i].text;
            draft.remove(i + 1, 2);
            return true;
        }
    }
    return false;
}

bool enclosePostfixes(Draft& draft, Findings& findings) {
    for (std::size_t i = 2; i < draft.words.size(); ++i) {
        const auto isPostfix = [&](std::size_t index) { return draft.at(index).is("!") || draft.at(index).is("%"); };
        if (isPostfix(i) && isPostfix(i - 1) && draft.endsOperand(i - 2)) {
            const std::size_t begin = operandBegin(draft, i - 1);
            findings[0] = draft.words[i].text;
            draft.insert(i, ")");
            draft.insert(begin, "(", draft.at(begin).afterBlank);
            draft.words[begin + 1].afterBlank = false;
            return true;
        }
    }
    return false;
}

bool closeParentheses(Draft& draft, Findings& /*findings*/) {
    int depth = 0;
    for (const DraftWord& word : draft.words) {
        depth += word.is("(") ? 1 : word.is(")") ? -1 : 0;
        if (depth < 0) {
            return false;
        }
    }
    for (int i = 0; i < depth; ++i) {
        draft.insert(draft.words.size(), ")");
    }
    return depth > 0;
}

}  // namespace calquo
