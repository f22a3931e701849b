// Words and operators that people write elsewhere; see foreign_expressions.h.
#include "hints/foreign_expressions.h"

#include <algorithm>
#include <array>

#include "engine/keywords.h"
#include "hints/foreign_words.h"
#include "hints/unknown_names.h"

namespace calquo {
namespace {

struct WordFor {
    std::string_view word;
    std::string_view write;
};

constexpr auto baseWords = std::to_array<WordFor>({
    {"hex", "'16"},
    {"hexadecimal", "'16"},
    {"tohex", "'16"},
    {"dec2hex", "'16"},
    {"bin", "'2"},
    {"binary", "'2"},
    {"tobin", "'2"},
    {"dec2bin", "'2"},
    {"oct", "'8"},
    {"octal", "'8"},
    {"dec2oct", "'8"},
    {"base16", "'16"},
    {"dec", "'10"},
    {"decimal", "'10"},
    {"base2", "'2"},
    {"base8", "'8"},
});

constexpr std::array<std::string_view, 4> arrowWords = {"in", "to", "as", "into"};

constexpr auto operatorWords = std::to_array<WordFor>({
    {"plus", "+"},
    {"minus", "-"},
    {"less", "-"},
    {"times", "*"},
    {"over", "/"},
    {"squared", "^2"},
    {"cubed", "^3"},
});

/// Functions of two arguments that stand between them elsewhere. Those of bits take the whole sides, the others what
/// a product would.
struct Infix {
    std::string_view sign;
    std::string_view write;
    std::string_view limits;
};
constexpr auto infixSigns = std::to_array<Infix>({
    {"mod", "rem(#1; #2)", "+-"},
    {"rem", "rem(#1; #2)", "+-"},
    {"div", "mod(#1; #2)", "+-"},
    {"//", "mod(#1; #2)", "+-"},
    {"%", "rem(#1; #2)", "+-"},
    {"&", "bAnd(#1; #2)", ""},
    {"|", "bOr(#1; #2)", ""},
    {"<<", "bShift(#1; -#2)", ""},
    {">>", "bShift(#1; #2)", ""},
});

constexpr auto functionsForUnits = std::to_array<WordFor>({{"min", "mn"}, {"sec", "s"}});

template <typename Rows>
const auto* rowOf(const Rows& rows, const DraftWord& word) {
    const auto row = std::ranges::find_if(rows, [&](const auto& entry) { return sameLetters(entry.word, word.text); });
    return row == std::end(rows) || !word.isName() ? nullptr : &*row;
}

bool isArrow(const DraftWord& word) {
    return word.is("->") || (word.isName() && std::ranges::any_of(arrowWords, [&](std::string_view arrow) {
                                 return sameLetters(arrow, word.text);
                             }));
}

/// The texts of the arguments between two parentheses.
std::vector<std::string> argumentsBetween(const Draft& draft, std::size_t opening, std::size_t closing) {
    std::vector<std::string> arguments;
    for (std::size_t begin = opening + 1; begin < closing;) {
        std::size_t end = begin;
        for (int depth = 0; end < closing && (depth > 0 || !draft.at(end).is(";")); ++end) {
            depth += draft.at(end).is("(") ? 1 : draft.at(end).is(")") ? -1 : 0;
        }
        arguments.push_back(draft.text(begin, end));
        begin = end + 1;
    }
    // Numbers whose commas were separated are still one word.
    if (arguments.size() == 1 && arguments[0].find("; ") != std::string::npos &&
        arguments[0].find('(') == std::string::npos) {
        std::string rest = std::move(arguments[0]);
        arguments.clear();
        for (std::size_t mark = rest.find("; "); mark != std::string::npos; mark = rest.find("; ")) {
            arguments.push_back(rest.substr(0, mark));
            rest.erase(0, mark + 2);
        }
        arguments.push_back(rest);
    }
    return arguments;
}

/// A template with its arguments in place of "#1" and so on, those of several words in parentheses where the template
/// goes on with them; empty when it wants another number of arguments.
std::string filled(std::string_view form, const std::vector<std::string>& arguments) {
    std::string text;
    std::size_t used = 0;
    bool takesAll = false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] != '#') {
            text += form[i];
            continue;
        }
        const auto number = static_cast<std::size_t>(form[++i] - '0');
        if (number == 0) {
            takesAll = true;
            for (std::size_t k = 0; k < arguments.size(); ++k) {
                text += (k == 0 ? "" : "; ") + arguments[k];
            }
            continue;
        }
        if (number > arguments.size()) {
            return {};
        }
        used = std::max(used, number);
        const std::string& argument = arguments[number - 1];
        const bool isWhole = text.ends_with('(') || text.ends_with("; ");
        const bool staysWhole = isWhole && (form.substr(i + 1).starts_with(')') || form.substr(i + 1).starts_with(';'));
        const bool isSimple = argument.find_first_of(" +-*/^;") == std::string::npos;
        text += isSimple || staysWhole ? argument : "(" + argument + ")";
    }
    return takesAll || used == arguments.size() ? text : std::string();
}

/// A function's name as the templates have it: "rem(n; m)".
std::string nameIn(std::string_view form) { return std::string(form.substr(0, form.find('('))); }

/// "is \"aSin\"" where the function has but another name.
std::string otherForm(std::string_view form) {
    const std::string name = nameIn(form);
    const std::string arguments(form.substr(name.size()));
    const bool isName = arguments == "(#0)" || arguments == "(#1)" || arguments == "(#1; #2)";
    return isName ? "is \"" + name + "\"" : "is calculated in another way";
}

/// Whether a unit follows the number of a sine or the like: "sin 30d", "sin(30 d)".
bool isOfAngle(const Draft& draft, std::size_t index) {
    constexpr std::array<std::string_view, 6> ofAngles = {"sin", "cos", "tan", "sec", "csc", "cot"};
    if (index < 2 || !draft.at(index - 1).isNumber()) {
        return false;
    }
    const std::size_t function = index - (draft.at(index - 2).is("(") && index > 2 ? 3 : 2);
    return std::ranges::any_of(ofAngles,
                               [&](std::string_view name) { return sameLetters(name, draft.at(function).text); });
}

bool isUnknown(const DraftWord& word) {
    if (!word.isName()) {
        return false;
    }
    const std::size_t index = lookup(word.text);
    return index == 0 || bindingOf(index).as<ReservedName>() != nullptr;
}

/// Puts `write` in the place of a word, in parentheses where it would fall apart there.
void replaceOperand(Draft& draft, std::size_t index, const std::string& write) {
    const bool isProduct = write.find_first_of("+-*/") != std::string::npos && write.front() != '(';
    const bool hasParts = write.find(' ') != std::string::npos;
    const bool afterDivision = draft.at(index - 1).is("->") || draft.at(index - 1).is("/");
    const bool beforePower = draft.at(index + 1).is("^");
    const bool isNumberAfterOperand = write[0] >= '0' && write[0] <= '9' && draft.endsOperand(index - 1);
    const bool needsParentheses = isProduct || isNumberAfterOperand || (hasParts && (afterDivision || beforePower));
    draft.replace(index, 1, needsParentheses ? "(" + write + ")" : write);
    draft.words[index].afterBlank = draft.words[index].afterBlank || draft.at(index - 1).isNumber();
}

}  // namespace

bool replaceBaseWords(Draft& draft, Findings& findings) {
    const std::size_t count = draft.words.size();
    const auto* const last = count > 1 ? rowOf(baseWords, draft.words[count - 1]) : nullptr;
    if (last != nullptr) {
        findings = {draft.words[count - 1].text, std::string(last->write), ""};
        draft.remove(count - 1);
        if (isArrow(draft.at(count - 2))) {
            draft.remove(count - 2);
        }
    } else if (const auto* const first = count > 1 ? rowOf(baseWords, draft.words[0]) : nullptr) {
        findings = {draft.words[0].text, std::string(first->write), ""};
        draft.remove(0);
        if (draft.at(0).is("(") && draft.sideEnd(1, "") == draft.words.size() - 1) {
            draft.remove(draft.words.size() - 1);
            draft.remove(0);
        }
    } else {
        return false;
    }
    draft.words.push_back({WordKind::Mark, findings[1], true, true});
    return true;
}

bool replaceArrowWords(Draft& draft, Findings& findings) {
    bool changed = false;
    if (draft.words.size() > 1 && sameLetters(draft.at(0).text, "convert") && draft.at(1).isNumber()) {
        draft.remove(0);
    }
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        if (!isArrow(draft.words[i]) || draft.words[i].is("->") || !draft.endsOperand(i - 1)) {
            continue;
        }
        const DraftWord& next = draft.at(i + 1);
        const bool leadsOn = next.kind == WordKind::Name || next.is("(");
        const bool isInch = sameLetters(draft.words[i].text, "in") && draft.at(i - 1).isNumber();
        if (!leadsOn || (isInch && isArrow(next))) {
            continue;
        }
        findings[0] = changed ? findings[0] : draft.words[i].text;
        if (isInch) {
            draft.replace(i, 1, "inch");
            draft.insert(++i, "->", true);
        } else {
            draft.words[i] = {WordKind::Mark, "->", true};
        }
        changed = true;
    }
    return changed;
}

bool replacePercentWords(Draft& draft, Findings& /*findings*/) {
    bool changed = false;
    // "50/200 in %": how many hundredths that is.
    if (const std::size_t count = draft.words.size();
        count > 2 && draft.words[count - 1].is("%") && isArrow(draft.words[count - 2])) {
        draft.remove(count - 2, 2);
        const bool isSum = draft.sideBegin(count - 2, "+-") != 0;
        const std::string share = draft.text();
        draft.replace(0, count - 2, (isSum ? "(" + share + ")" : share) + "*100");
        return true;
    }
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        const DraftWord& word = draft.words[i];
        if (!word.isName() || !draft.endsOperand(i - 1)) {
            continue;
        }
        const bool percent = sameLetters(word.text, "percent") || sameLetters(word.text, "pct");
        if (percent && draft.at(i - 1).isNumber()) {
            draft.words[i] = {WordKind::Mark, "%"};
        } else if (sameLetters(word.text, "of")) {
            draft.words[i] = {WordKind::Mark, "*", true};
        } else if (sameLetters(word.text, "off") && draft.at(i - 1).is("%") && draft.beginsOperand(i + 1)) {
            const std::string share = draft.text(draft.sideBegin(i, "+-"), i);
            const std::string whole = draft.text(i + 1, draft.sideEnd(i + 1, "+-"));
            const std::size_t begin = draft.sideBegin(i, "+-");
            draft.replace(begin, draft.sideEnd(i + 1, "+-") - begin, whole + "*(1-" + share + ")");
            i = begin;
        } else {
            continue;
        }
        changed = true;
    }
    return changed;
}

bool joinPhrases(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i + 1 < draft.words.size(); ++i) {
        const auto isPhrase = [&](const ForeignPhrase& row) {
            const std::string& second = draft.at(i + 1).text;
            return draft.words[i].isName() && draft.at(i + 1).isName() && sameLetters(row.first, draft.words[i].text) &&
                   (sameLetters(row.second, second) || sameLetters(std::string(row.second) + "s", second) ||
                    sameLetters(std::string(row.second) + "es", second));
        };
        const auto row = std::ranges::find_if(foreignPhrases(), isPhrase);
        if (row == foreignPhrases().end()) {
            continue;
        }
        findings = changed ? findings : Findings{draft.text(i, i + 2), std::string(row->write), ""};
        draft.replace(i, 2, std::string(row->write));
        changed = true;
    }
    // "sqrt of 16"
    for (std::size_t i = 1; i + 1 < draft.words.size(); ++i) {
        const std::size_t function = draft.at(i - 1).isName() ? lookup(draft.at(i - 1).text) : 0;
        if (sameLetters(draft.words[i].text, "of") && function != 0 && classOf(function) == ArgumentClass::One) {
            draft.remove(i);
        }
    }
    return changed;
}

bool replaceOperatorWords(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        const DraftWord& word = draft.words[i];
        std::size_t count = 1;
        std::string write;
        if (const auto* const row = rowOf(operatorWords, word)) {
            write = row->write;
        } else if (draft.at(i + 1).isName() && sameLetters(draft.at(i + 1).text, "by") && word.isName()) {
            write = sameLetters(word.text, "divided") ? "/" : sameLetters(word.text, "multiplied") ? "*" : "";
            count = 2;
        }
        if (write.empty() || !draft.endsOperand(i - 1)) {
            continue;
        }
        findings[0] = changed ? findings[0] : draft.text(i, i + count);
        findings[1] = changed ? findings[1] : write;
        draft.remove(i, count);
        draft.insert(i, write.substr(0, 1), write.size() == 1);
        if (write.size() > 1) {
            draft.words.insert(draft.words.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                               {WordKind::Number, write.substr(1)});
        }
        changed = true;
    }
    return changed;
}

bool replaceCalls(Draft& draft, Findings& findings) {
    bool changed = false;
    // From the end, so that the innermost calls come first.
    for (std::size_t i = draft.words.size(); i-- > 0;) {
        // "C(5, 2)": combinations, where the language has a temperature.
        const bool isChoice = draft.words[i].is("C") && draft.at(i + 1).is("(");
        if (!isChoice && !isUnknown(draft.words[i])) {
            continue;
        }
        const ForeignCall* const row = foreignCall(isChoice ? "ncr" : draft.words[i].text);
        if (row == nullptr) {
            continue;
        }
        std::size_t end = i + 2;
        std::vector<std::string> arguments{draft.at(i + 1).text};
        if (draft.at(i + 1).is("(")) {
            end = draft.sideEnd(i + 2, "");
            while (draft.at(end).is(";") || draft.at(end).is("->")) {
                end = draft.sideEnd(end + 1, "");
            }
            arguments = argumentsBetween(draft, i + 1, end);
            ++end;
        } else if (!draft.beginsOperand(i + 1)) {
            continue;
        }
        const std::string call = filled(row->write, arguments);
        if (call.empty() || end > draft.words.size()) {
            continue;
        }
        findings = {draft.words[i].text, otherForm(row->write), ""};
        draft.replace(i, end - i, call);
        changed = true;
    }
    return changed;
}

bool movePowers(Draft& draft, Findings& findings) {
    for (std::size_t i = 0; i + 3 < draft.words.size(); ++i) {
        const std::size_t index = draft.words[i].isName() ? lookup(draft.words[i].text) : 0;
        const bool isFunction = index != 0 && classOf(index) == ArgumentClass::One && draft.at(i + 1).is("^");
        const bool isInverse = draft.at(i + 2).is("-") && draft.at(i + 3).is("1");
        const std::size_t argument = isInverse ? i + 4 : i + 3;
        const std::string inverse = "a" + draft.words[i].text;
        if (!isFunction || !draft.at(argument).is("(") || (isInverse && lookup(inverse) == 0)) {
            continue;
        }
        const std::size_t end = draft.sideEnd(argument + 1, "") + 1;
        const std::string call = draft.text(argument, end);
        if (isInverse) {
            findings[0] =
                "The inverse of \"" + draft.words[i].text + "\" is \"" + std::string(nameOf(lookup(inverse))) + "\".";
            draft.replace(i, end - i, std::string(nameOf(lookup(inverse))) + call);
        } else {
            findings[0] = "The power of a function follows its argument.";
            draft.replace(i, end - i, draft.words[i].text + call + "^" + draft.at(i + 2).text);
        }
        return true;
    }
    return false;
}

bool replaceInfixFunctions(Draft& draft, Findings& findings) {
    for (std::size_t i = 1; i + 1 < draft.words.size(); ++i) {
        const DraftWord& word = draft.words[i];
        const auto known =
            std::ranges::find_if(infixSigns, [&](const Infix& row) { return sameLetters(row.sign, word.text); });
        std::string_view form;
        std::string_view limits;
        if (known != infixSigns.end()) {
            form = known->write;
            limits = known->limits;
        } else if (const ForeignCall* const row = word.isName() ? foreignCall(word.text) : nullptr) {
            form = row->write;
            limits = form.starts_with('b') ? "" : "+-";
        }
        const bool isCall = (word.isName() && lookup(word.text) != 0 && draft.at(i + 1).is("(")) ||
                            (word.is("%") && draft.at(i + 1).isName());
        if (form.find("#2") == std::string_view::npos || word.settled || isCall || !draft.endsOperand(i - 1) ||
            !draft.beginsOperand(i + 1)) {
            continue;
        }
        std::size_t begin = draft.sideBegin(i, limits);
        if (begin > 0 && draft.at(begin - 1).is("-") && !draft.endsOperand(begin - 2)) {
            --begin;  // the sign of the operand
        }
        const std::size_t end = draft.sideEnd(i + 1, limits);
        const std::string call = filled(form, {draft.text(begin, i), draft.text(i + 1, end)});
        findings = {word.text, nameIn(form), ""};
        draft.replace(begin, end - begin, call);
        return true;
    }
    return false;
}

bool replaceComplementSigns(Draft& draft, Findings& /*findings*/) {
    bool changed = false;
    for (std::size_t i = 0; i + 1 < draft.words.size(); ++i) {
        if (draft.words[i].is("~") && draft.at(i + 1).isNumber()) {
            draft.replace(i, 2, "bNot(" + draft.at(i + 1).text + ")");
            changed = true;
        }
    }
    return changed;
}

bool replaceFunctionsAsUnits(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const auto* const row = rowOf(functionsForUnits, draft.words[i]);
        if (row == nullptr || draft.beginsOperand(i + 1) ||
            !(draft.endsOperand(i - 1) || draft.at(i - 1).is("->") || draft.at(i - 1).is("/"))) {
            continue;
        }
        findings = {draft.words[i].text, std::string(descriptionOf(lookup(row->word))), std::string(row->write)};
        draft.replace(i, 1, std::string(row->write));
        draft.words[i].afterBlank = true;
        changed = true;
    }
    return changed;
}

bool dropMissingWords(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const MissingWord* const row = isUnknown(draft.words[i]) ? missingWord(draft.words[i].text) : nullptr;
        if (row == nullptr) {
            continue;
        }
        findings[0] = changed ? findings[0] : std::string(row->reason);
        changed = true;
        const bool isTarget = i > 0 && isArrow(draft.words[i - 1]);
        if (row->leftOut && !isTarget && (i == 0 || draft.endsOperand(i - 1) || draft.beginsOperand(i + 1))) {
            draft.remove(i--);
        }
    }
    return changed;
}

bool replaceNames(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const bool isForeign = isUnknown(draft.words[i]) && missingWord(draft.words[i].text) == nullptr;
        auto found = isForeign ? replacementFor(draft.words[i].text) : std::nullopt;
        if (found && draft.words[i].is("d") && isOfAngle(draft, i)) {
            found->text = "deg";
        }
        if (!found) {
            continue;
        }
        if (!changed) {
            findings = {draft.words[i].text, found->text, found->note.empty() ? "" : " " + std::string(found->note)};
        }
        replaceOperand(draft, i, found->text);
        changed = true;
    }
    return changed;
}

}  // namespace calquo
