// Tries corrections first, then names, then arguments; see refused_lines.h.
#include "hints/refused_lines.h"

#include <algorithm>

#include "engine/binding.h"
#include "engine/characters.h"
#include "engine/keywords.h"
#include "hints/accepted_lines.h"
#include "hints/correction.h"

#include "hints/foreign_words.h"
#include "hints/function_examples.h"
#include "hints/trial.h"
#include "hints/unknown_names.h"

namespace calquo {
namespace {

constexpr std::size_t mostReasons = 2;

/// Makes all corrections; returns the reasons for the first of them.
std::vector<std::string> correct(Draft& draft) {
    std::vector<std::string> reasons;
    for (const Correction& row : corrections()) {
        Findings findings;
        if (row.corrects(draft, findings)) {
            reasons.push_back(filledText(row.say, findings));
        }
    }
    return reasons;
}

std::string joined(const std::vector<std::string>& reasons) {
    std::string text;
    for (std::size_t i = 0; i < std::min(reasons.size(), mostReasons); ++i) {
        text += (text.empty() ? "" : " ") + reasons[i];
    }
    return text;
}

/// The first name of a draft that the language does not have; empty when it has all.
std::string_view unknownNameIn(const Draft& draft) {
    const auto found = std::ranges::find_if(
        draft.words, [](const DraftWord& word) { return word.isName() && lookup(word.text) == 0; });
    return found == draft.words.end() ? std::string_view() : std::string_view(found->text);
}

/// "rent = 800": one name that the language does not have, and what is to be its value.
bool isAssignment(const Situation& situation) {
    const std::size_t equals = situation.line.find('=');
    return situation.answer->error == ErrorCode::UnknownName && equals != std::string_view::npos &&
           situation.words().size() == 1 && situation.words()[0].isName() &&
           situation.line.find_first_not_of(" \t", equals + 1) != std::string_view::npos;
}

std::string notKnown(std::string_view name) { return "\"" + std::string(name) + "\" is no name that is known here."; }

std::string hintForUnknown(std::string_view name) {
    std::string text = notKnown(name);
    const std::vector<std::string_view> near = nearestNames(name);
    for (std::size_t i = 0; i < near.size(); ++i) {
        text += i == 0 ? " Near it: " : i + 1 == near.size() ? " and " : ", ";
        text += "\"" + std::string(near[i]) + "\"";
    }
    return text + (near.empty() ? "" : ".");
}

/// "30 mpg to l/100km": a target per so many of a unit is often the reciprocal of what is converted.
bool hasCountedTarget(const Draft& draft) {
    for (std::size_t i = 0; i + 3 < draft.words.size(); ++i) {
        if (draft.words[i].is("->") && draft.at(i + 2).is("/") && draft.at(i + 3).isNumber()) {
            return true;
        }
    }
    return false;
}

bool hasNumbersSideBySide(const Draft& draft) {
    const auto areNumbers = [](const DraftWord& a, const DraftWord& b) { return a.isNumber() && b.isNumber(); };
    return std::ranges::adjacent_find(draft.words, areNumbers) != draft.words.end();
}

/// The function whose name ends where the error lies.
std::string_view functionAtError(const Situation& situation) {
    const std::size_t end = situation.answer->position;
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (end > situation.expression.size() || !std::ranges::all_of(situation.expression, isAscii)) {
        return {};
    }
    std::size_t begin = end;
    while (begin > 0 && isNameCharacter(situation.expression[begin - 1])) {
        --begin;
    }
    return situation.expression.substr(begin, end - begin);
}

std::string hintForArguments(const Situation& situation) {
    const std::size_t index = lookup(functionAtError(situation));
    if (index == 0 || argumentsOf(index).empty()) {
        return {};
    }
    std::string text = "The arguments are " + std::string(nameOf(index)) + "(" + std::string(argumentsOf(index)) + ")";
    if (const ListFunction* function = bindingOf(index).as<ListFunction>();
        function != nullptr && function->least > 0) {
        text += ", the first " + std::to_string(function->least) + " of them at least";
    }
    const std::string_view example = exampleOf(index);
    return text + "." + (example.empty() ? "" : " Write, for instance, \"" + std::string(example) + "\".");
}

/// The same for a corrected line, after its reason.
std::string hintForArgumentsOf(const std::string& line, const HintSettings& settings) {
    Answer answer;
    const WordsOfLine words(line);
    if (evaluates(line, settings.format, answer) || answer.error != ErrorCode::WrongArgumentCount) {
        return {};
    }
    const std::string text = hintForArguments({line, line, words, &answer, settings});
    return text.empty() ? text : " " + text;
}

/// "fv(100; 12; 5%)": puts a unit of time after the number that wants one.
std::string hintForDuration(const Situation& situation) {
    std::size_t end = std::min(situation.answer->position, situation.expression.size());
    while (end < situation.expression.size() && isNameCharacter(situation.expression[end])) {
        ++end;
    }
    std::string line(situation.expression);
    line.insert(end, " month");
    const std::string text = "A duration has a unit of time, such as \"month\" or \"year\".";
    return hasResult(line) ? text + " Write \"" + line + "\"." : text;
}

}  // namespace

std::string hintForRefused(const Situation& situation) {
    if (isNote(situation.line, *situation.answer)) {
        return "The line stays as it is: \"" + std::string(situation.expression) +
               "\" is an unknown name, and there are no variables.";
    }
    if (isAssignment(situation)) {
        return notKnown(situation.words()[0].text) +
               " There are no variables: write the value itself where it is needed.";
    }
    Draft draft(situation.words());
    const std::vector<std::string> reasons = correct(draft);
    if (const std::string line = draft.text(); !reasons.empty() && !hasCountedTarget(draft) && hasResult(line)) {
        return joined(reasons) + " Write \"" + asMeant(line, situation.settings) + "\".";
    }
    const std::string_view unknown = unknownNameIn(draft);
    if (!unknown.empty() && missingWord(unknown) == nullptr) {
        return hintForUnknown(unknown);
    }
    if (!reasons.empty()) {
        return reasons.front() + hintForArgumentsOf(draft.text(), situation.settings);
    }
    switch (situation.answer->error) {
        case ErrorCode::WrongArgumentCount:
            return hintForArguments(situation);
        case ErrorCode::AtLeastOneDay:
            return hintForDuration(situation);
        case ErrorCode::Parentheses:
            return situation.expression.ends_with('(') ? "" : "A \")\" has no \"(\" before it.";
        case ErrorCode::InvalidFormat:
            if (situation.expression.find_first_of("<>") != std::string_view::npos &&
                situation.expression.find("->") == std::string_view::npos) {
                return "There are no comparisons.";
            }
            return hasNumbersSideBySide(draft) ? "Between two numbers an operator is missing." : "";
        default:
            return {};
    }
}

}  // namespace calquo
