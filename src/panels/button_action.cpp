// The rules of the panels; see button_action.h.
#include "panels/button_action.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "values/errors.h"
#include "workarea/record.h"

namespace calquo {
namespace {

/// What goes before and after the selection.
struct Affixes {
    std::string prefix;
    std::string suffix;
};

/// A character that words must be kept apart from; control characters count as blanks.
bool isInk(char character) { return static_cast<unsigned char>(character) > ' '; }

/// Puts a prefix and a suffix around the selection. Blanks keep them apart from their neighbours, and the caret goes
/// where typing is to go on.
SurroundCharacters insertAround(const LineSelection& line, const Affixes& around) {
    const std::size_t open = around.prefix.find('(');
    const bool calls = open != std::string::npos;
    const bool selects = line.begin != line.end;
    const bool inkBefore = line.begin > 0 && isInk(line.text[line.begin - 1]);
    const bool inkAfter = line.end < line.text.size() && isInk(line.text[line.end]);

    SurroundCharacters result{line.begin, line.end, around.prefix, around.suffix, 0};
    if (inkBefore) {
        result.before.insert(0, 1, ' ');
    }
    const std::size_t prefixBegin = line.begin + (inkBefore ? 1 : 0);
    if (calls && open + 1 < around.prefix.size()) {
        result.caret = prefixBegin + open + 1;
    } else {
        // A name without parentheses does not touch what it stands before. Where nothing is selected that is the
        // character after the suffix, which gets its blank below.
        if (!calls && selects && isInk(line.text[line.begin])) {
            result.before += ' ';
        }
        result.caret = line.begin + result.before.size() + (line.end - line.begin);
    }
    if (inkAfter) {
        result.after += ' ';
    }
    return result;
}

/// Puts a function around the selection or, where nothing is selected, around a result that has just been carried on.
/// A name without arguments takes the place of that result.
ButtonAction insertFunction(const LineSelection& line, const Affixes& around) {
    if (line.begin != line.end || line.carried == 0) {
        return insertAround(line, around);
    }
    const std::size_t begin = line.end - line.carried;
    if (around.prefix.find('(') == std::string::npos) {
        return ReplaceCharacters{begin, line.end, around.prefix, begin + around.prefix.size()};
    }
    return insertAround({line.text, begin, line.end}, around);
}

/// A call of a function with the selection as its first argument, `rest` after it, and `after` after the call.
Affixes callOf(std::string_view name, std::string_view rest, std::string_view after = {}) {
    return {std::string(name) + '(', std::string(rest).append(")").append(after)};
}

/// A function of the angle panels; the names of the inverse functions begin with "a". Deliberate: the hyperbolic
/// functions are treated like the circular ones.
Affixes angleCall(std::string_view name, AngleOption angle) {
    const auto* const row = std::ranges::find(angleRows, angle, &AngleRow::option);
    if (row == angleRows.end()) {
        return callOf(name, "");
    }
    if (lowerCase(name.front()) == 'a') {
        return callOf(name, "", " ->" + std::string(row->suffix));
    }
    return callOf(name, row->suffix);
}

/// A name of the language, with room for as many arguments as it takes.
Affixes callWithRoom(std::string_view name) {
    // Deliberate: what is selected comes second, and the caret goes to the first argument.
    if (name == "logB" || name == "root") {
        return {std::string(name) + "(; ", ")"};
    }
    const auto arguments = static_cast<std::size_t>(classOf(lookup(name)));
    if (arguments == 0) {
        return {std::string(name), ""};
    }
    std::string rest;
    for (std::size_t further = 1; further < arguments; ++further) {
        rest += "; ";
    }
    return callOf(name, rest);
}

/// A financial function. Arguments that are often the same are there to be typed over, values are left empty; the
/// timing, which is last and need not be given, is left out.
Affixes financialCall(std::string_view name) {
    struct Example {
        std::string_view argument, text;
    };
    constexpr Example examples[] = {
        {"duration", "1 year"},      {"rate", "5%"}, {"compounding period", "month"}, {"payment", "0"},
        {"payment period", "month"},
    };
    constexpr std::string_view separator = "; ";
    std::string_view arguments = argumentsOf(lookup(name));
    std::string rest;
    for (std::size_t end = arguments.find(separator); end != arguments.npos; end = arguments.find(separator)) {
        arguments.remove_prefix(end + separator.size());
        const std::string_view argument = arguments.substr(0, arguments.find(separator));
        if (argument != "timing") {
            const auto* const example = std::ranges::find(examples, argument, &Example::argument);
            rest.append(separator).append(example == std::end(examples) ? "" : example->text);
        }
    }
    return callOf(name, rest, name == "dur" ? " -> yr" : "");
}

/// Whether a suffix that asks for an output base stands at an index, be its base one that exists or not.
bool outputBaseStandsAt(std::string_view expression, std::size_t index) {
    try {
        return readOutputBaseSuffix(expression, index).length != 0;
    } catch (const Except&) {
        return true;
    }
}

/// The length of an expression without the suffix that asks for an output base, and without the blanks before that.
std::size_t lengthBeforeOutputBase(std::string_view expression) {
    std::size_t begin = std::min(expression.rfind(markCharacter(TokenClass::BaseMark)), expression.size());
    while (begin > 0 && isBlank(expression[begin - 1])) {
        --begin;
    }
    return outputBaseStandsAt(expression, begin) ? begin : expression.size();
}

/// Puts `suffix` in place of the one that asks for an output base, at the end of the line's expression or, where a
/// line has none, of the line. The caret stays at its place in the text, so that the expression can be typed on.
ButtonAction changeOutputBase(const LineSelection& line, std::string suffix) {
    const bool answered = line.text.find(markCharacter(TokenClass::Equals)) != std::string_view::npos;
    const std::string_view expression = answered ? expressionOf(line.text) : line.text;
    const std::string_view asking = expression.empty() ? line.text : expression;
    const std::size_t begin = lengthBeforeOutputBase(asking);
    const std::size_t end = asking.size();
    if (begin == end && suffix.empty()) {
        return NoAction{};
    }
    const std::size_t caret = line.end <= end ? std::min(line.end, begin) : line.end - (end - begin) + suffix.size();
    return ReplaceCharacters{begin, end, std::move(suffix), caret};
}

ButtonAction numericBaseAction(std::string_view insertion, const LineSelection& line) {
    if (insertion == "10") {
        return changeOutputBase(line, "");
    }
    if (insertion.size() > 1 && insertion.front() == markCharacter(TokenClass::BaseMark)) {
        return changeOutputBase(line, ' ' + std::string(insertion));
    }
    return TypeCharacters{insertion};
}

/// What the button of a keypad does that types nothing.
ButtonAction editingAction(Symbol symbol) {
    switch (symbol) {
        case Symbol::EraseBack:
            return EditingOperation::Backspace;
        case Symbol::EraseNext:
            return EditingOperation::Delete;
        case Symbol::Enter:
            return EditingOperation::Enter;
        case Symbol::Clear:
            return EditingOperation::Clear;
        case Symbol::Undo:
            return EditingOperation::Undo;
        case Symbol::Redo:
            return EditingOperation::Redo;
        default:
            return NoAction{};
    }
}

}  // namespace

ButtonAction actionOf(const PanelEntry& panel, const PanelButton& button, const LineSelection& line,
                      AngleOption angle) {
    const std::size_t end = std::min(line.end, line.text.size());
    const LineSelection inLine{line.text, std::min(line.begin, end), end, std::min(line.carried, end)};
    const std::string_view name = button.insertion;
    switch (panel.group) {
        case PanelGroup::Keypads:
            if (panel.identifier == numericBasePanel) {
                return numericBaseAction(name, inLine);
            }
            return name.empty() ? editingAction(button.symbol) : TypeCharacters{name};
        case PanelGroup::Financial:
            return insertFunction(inLine, financialCall(name));
        case PanelGroup::BitLevel:
        case PanelGroup::Mathematics:
            return insertFunction(inLine, callWithRoom(name));
        case PanelGroup::Units:
            return insertAround(inLine, callWithRoom(name));
        case PanelGroup::Statistics:
            return insertFunction(inLine, callOf(name, ""));
        case PanelGroup::Trigonometric:
            return insertFunction(inLine, angleCall(name, angle));
    }
    return NoAction{};
}

}  // namespace calquo
