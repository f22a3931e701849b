// Buttons pressed with lines of the work area as a person leaves them.
#include "panels/button_action.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "engine/evaluator.h"
#include "engine/function_table.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "units/named_constants.h"
#include "units/unit_table.h"
#include "values/errors.h"

namespace calquo {
namespace {

const PanelButton& buttonOf(std::uint16_t panel, std::string_view labelOrDescription) {
    const PanelEntry* const entry = findPanel(panel);
    for (const PanelRow& row : entry->rows) {
        for (const PanelButton& button : row) {
            if ((button.label.empty() ? button.description : button.label) == labelOrDescription) {
                return button;
            }
        }
    }
    throw std::invalid_argument(std::string(labelOrDescription));
}

/// A line and its selection, drawn as "2+[3]", or with the caret alone as "2+|3"; "<" begins a result that has just
/// been carried on to the caret.
struct Drawing {
    Drawing(std::string_view drawn) {
        for (const char character : drawn) {
            if (character == '<') {
                carried = drawn.size() - 2;
                continue;
            }
            if (character == '[' || character == '|') {
                begin = text.size();
            }
            if (character == ']' || character == '|') {
                end = text.size();
            }
            if (character != '[' && character != ']' && character != '|') {
                text += character;
            }
        }
    }

    std::string text;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t carried = 0;
};

/// What a button makes of a line, with "|" for the caret; an operation of the work area by its name.
class Pressed {
public:
    explicit Pressed(const Drawing& line) : line_(line) {}

    std::string operator()(NoAction) const { return "nothing"; }

    std::string operator()(EditingOperation operation) const {
        constexpr std::string_view names[] = {"Backspace", "Delete", "Enter", "Clear", "Undo", "Redo"};
        return std::string(names[static_cast<std::size_t>(operation)]);
    }

    std::string operator()(const TypeCharacters& action) const {
        return line_.text.substr(0, line_.begin) + std::string(action.characters) + '|' + line_.text.substr(line_.end);
    }

    std::string operator()(const SurroundCharacters& action) const {
        const std::string kept = line_.text.substr(action.begin, action.end - action.begin);
        return withCaret(action.begin, action.end, action.before + kept + action.after, action.caret);
    }

    std::string operator()(const ReplaceCharacters& action) const {
        const std::string removed = line_.text.substr(action.begin, action.end - action.begin);
        EXPECT_EQ(removed.find_first_not_of(" \t'0123456789"), std::string::npos) << "lost: " << removed;
        return withCaret(action.begin, action.end, action.text, action.caret);
    }

private:
    std::string withCaret(std::size_t begin, std::size_t end, std::string_view text, std::size_t caret) const {
        std::string changed = line_.text.substr(0, begin) + std::string(text) + line_.text.substr(end);
        EXPECT_LE(caret, changed.size());
        return changed.insert(std::min(caret, changed.size()), "|");
    }

    const Drawing& line_;
};

std::string press(std::uint16_t panel, const PanelButton& button, const Drawing& line, AngleOption angle = {}) {
    return std::visit(Pressed(line),
                      actionOf(*findPanel(panel), button, {line.text, line.begin, line.end, line.carried}, angle));
}

struct ActionRow {
    std::uint16_t panel;
    std::string_view button, line, after;
    AngleOption angle = AngleOption::None;
};

using enum AngleOption;

const ActionRow actionRows[] = {
    // Keypads type.
    {0xA110, "7", "|", "7|"},
    {0xA110, "7", "1[23]4", "17|4"},
    {0xA112, "F", "16'|", "16'F|"},
    // Functions go around the selection.
    {0xA331, "sqrt", "[2]", "sqrt(2|)"},
    {0xA331, "sqrt", "|", "sqrt(|)"},
    {0xA331, "sqrt", "2+[3]*4", "2+ sqrt(3|) *4"},
    {0xA331, "sqrt", "2+ [3] *4", "2+ sqrt(3|) *4"},
    {0xA331, "sqrt", "2\t[3]\t*4", "2\tsqrt(3|)\t*4"},
    {0xA331, "sqrt", "2|3", "2 sqrt(|) 3"},
    {0xA331, "sqrt", "[2+\x7F]\xE9", "sqrt(2+\x7F|) \xE9"},
    {0xA331, "pow", "[2]", "pow(2|; )"},
    {0xA331, "logB", "|", "logB(|; )"},
    {0xA331, "logB", "[81]", "logB(|; 81)"},
    {0xA331, "root", "2+[27]+3", "2+ root(|; 27) +3"},
    {0xA361, "rnd", "2*|", "2* rnd|"},
    {0xA181, "bAnd", "[12]", "bAnd(12|; )"},
    {0xA182, "bNot", "[12]", "bNot(12|)"},
    {0xA411, "max", "[1; 2]", "max(1; 2|)"},
    {0xA211, "fv", "[100]", "fv(100|; 1 year; 5%; month; 0; month)"},
    {0xA211, "pv", "[100]", "pv(100|; 1 year; 5%; month; 0; month)"},
    {0xA211, "pmt", "|", "pmt(|; ; 1 year; 5%; month; month)"},
    {0xA211, "dur", "|", "dur(|; ; 5%; month; 0; month) -> yr"},
    {0xA211, "rate", "|", "rate(|; ; 1 year; month; 0; month)"},
    // A result that has just been carried on is a function's argument.
    {0xA331, "sqrt", "<25|", "sqrt(25|)"},
    {0xA331, "logB", "<(1; 2)|", "logB(|; (1; 2))"},
    {0xA411, "max", "<5|", "max(5|)"},
    {0xA181, "bAnd", "<5|", "bAnd(5|; )"},
    {0xA211, "fv", "<5|", "fv(5|; 1 year; 5%; month; 0; month)"},
    {0xA010, "sin", "<5|", "sin(5| deg)", Degree},
    {0xA361, "rnd", "<5|", "rnd|"},
    {0xA550, "km", "<5|", "5 km|"},
    {0xA113, "'16", "<5|", "5| '16"},
    // Those of angles add the unit that is chosen, and no others do.
    {0xA010, "sin", "[30]", "sin(30|)"},
    {0xA010, "sin", "[30]", "sin(30| deg)", Degree},
    {0xA010, "cot", "[30]", "cot(30| grad)", Gradient},
    {0xA011, "acos", "[30]", "acos(30|) -> grad", Gradient},
    {0xA011, "atan", "[30]", "atan(30|) -> rad", Radian},
    {0xA020, "sinh", "[30]", "sinh(30| rad)", Radian},
    {0xA021, "asinh", "[30]", "asinh(30|) -> deg", Degree},
    {0xA311, "abs", "[30]", "abs(30|)", Degree},
    {0xA421, "avg", "[30]", "avg(30|)", Degree},
    // Units stand apart from their neighbours.
    {0xA550, "km", "5|", "5 km|"},
    {0xA550, "km", "5 |", "5 km|"},
    {0xA550, "km", "  5|", "  5 km|"},
    {0xA550, "km", "|", "km|"},
    {0xA550, "km", "|5", "km| 5"},
    {0xA550, "km", "5|+3", "5 km| +3"},
    {0xA550, "km", "5| + 3", "5 km| + 3"},
    {0xA550, "km", "5+[3]*2", "5+ km 3| *2"},
    {0xA550, "km", "5 [ 3] ", "5 km 3| "},
    {0xA590, "kilo", "[m]", "kilo m|"},
    {0xA5B0, "inHg", "3|", "3 inchHg|"},
    {0xA580, "pi", "2\xE9|", "2\xE9 pi|"},
    // An output base is asked for once.
    {0xA113, "2'", "3+|4", "3+2'|4"},
    {0xA113, "16'", "[255]", "16'|"},
    {0xA113, "'", "2|", "2'|"},
    {0xA113, "'16", "255|", "255| '16"},
    {0xA113, "'16", "255| '16", "255| '16"},
    {0xA113, "'8", "255 \t '16 |", "255| '8"},
    {0xA113, "'8", "[255] '99", "255| '8"},
    {0xA113, "'2", "| '2", "| '2"},
    {0xA113, "'2", "255|  ", "255|   '2"},
    {0xA113, "'2", "'16 255|", "'16 255| '2"},
    {0xA113, "'16", "2+\x7F '8|\xE9", "2+\x7F '8|\xE9 '16"},
    {0xA113, "10", "255 '16|", "255|"},
    {0xA113, "10", "255|", "nothing"},
    {0xA113, "10", "'16 255|", "nothing"},
    // The base of the result after an expression makes no difference.
    {0xA113, "'16", "255| = 255", "255| '16 = 255"},
    {0xA113, "'16", "255 = 255|", "255 '16 = 255|"},
    {0xA113, "'8", "255 '16 = 16'FF|", "255 '8 = 16'FF|"},
    {0xA113, "'8", "255 '1|6 = \xE9", "255| '8 = \xE9"},
    {0xA113, "10", "255 '16 = 16'F[F]", "255 = 16'FF|"},
    {0xA113, "10", "255 = 255 '16|", "nothing"},
    // No expression stands in these.
    {0xA113, "'16", "5=9|", "5=9| '16"},
};

TEST(ButtonAction, ChangesTheLine) {
    for (const ActionRow& row : actionRows) {
        EXPECT_EQ(press(row.panel, buttonOf(row.panel, row.button), row.line, row.angle), row.after)
            << row.button << " on " << row.line;
    }
}

TEST(ButtonAction, SelectionCountsAsFarAsItLiesInTheLine) {
    Drawing line("2+[3]");
    line.end = 99;
    EXPECT_EQ(press(0xA331, buttonOf(0xA331, "sqrt"), line), "2+ sqrt(3|)");
    line.begin = 50;
    EXPECT_EQ(press(0xA331, buttonOf(0xA331, "sqrt"), line), "2+3 sqrt(|)");
}

/// `line` without the caret, every empty place for an argument filled with "2".
std::string filled(std::string line) {
    line.erase(line.find('|'), 1);
    for (std::size_t index = 0; index + 1 < line.size(); ++index) {
        const std::size_t next = index + 1 + blankLength(line, index + 1);
        const bool opens = line[index] == ';' || (line[index] == '(' && characterAt(line, next) == ';');
        if (opens && (characterAt(line, next) == ';' || characterAt(line, next) == ')')) {
            line.insert(next, "2");
        }
    }
    return line;
}

testing::AssertionResult evaluates(const std::string& line) {
    try {
        evaluateLine(line);
        return testing::AssertionSuccess();
    } catch (const Except& error) {
        return testing::AssertionFailure() << line << " is refused: " << errorMessage(error.code);
    }
}

/// Calls `check` with every button of the panels and its panel.
template <typename Check>
void forEveryButton(const Check& check) {
    for (const PanelEntry& panel : panelCatalogue()) {
        for (const PanelRow& row : panel.rows) {
            for (const PanelButton& button : row) {
                SCOPED_TRACE(std::string(panel.menuLabel) + ": " + std::string(button.label));
                check(panel, button);
            }
        }
    }
}

TEST(EveryButton, StandsInARowThatFillsSixButtonsOrLeavesWholeOnesFree) {
    for (const PanelEntry& panel : panelCatalogue()) {
        for (const PanelRow& row : panel.rows) {
            int halfWidths = 0;
            for (const PanelButton& button : row) {
                halfWidths += 2 + button.extraHalfWidths;
            }
            EXPECT_TRUE(halfWidths == 12 || halfWidths == 10 || halfWidths == 8) << panel.menuLabel << halfWidths;
        }
    }
}

TEST(EveryButton, OfANameMakesALineThatEvaluates) {
    forEveryButton([](const PanelEntry& panel, const PanelButton& button) {
        if (panel.group == PanelGroup::Keypads) {
            return;
        }
        const bool takesNumber = classOf(lookup(button.insertion)) != ArgumentClass::None;
        // A list long enough to have a deviation.
        const std::string_view numbers = panel.group == PanelGroup::Statistics ? "[2; 3]" : "[2]";
        for (const AngleOption angle : {None, Degree, Gradient, Radian}) {
            const std::string line = press(panel.identifier, button, takesNumber ? numbers : "2|", angle);
            EXPECT_TRUE(evaluates(filled(line)));
        }
    });
}

TEST(EveryButton, TogetherStandForEveryFunctionUnitAndPrefix) {
    std::set<std::string_view> names;
    forEveryButton(
        [&](const PanelEntry&, const PanelButton& button) { names.insert(nameOf(lookup(button.insertion))); });
    names.erase("");  // of buttons that stand for no name
    for (const FunctionRow& row : functionTable) {
        const bool isLeftOut = row.name == "gcf" || row.name == "convert" || row.name == "int";
        EXPECT_NE(names.contains(row.name), isLeftOut) << row.name;
    }
    for (const Unit& unit : unitTable) {
        EXPECT_TRUE(names.contains(unit.name) || names.contains(unit.aliases.begin()->name)) << unit.name;
    }
    for (const NamedConstant& prefix : prefixes) {
        EXPECT_TRUE(names.contains(prefix.name)) << prefix.name;
    }
}

/// Whether a text is one token of the language: a digit, a mark, an operator, a blank or a base prefix.
bool isToken(std::string_view text) {
    if (text.size() == 1 && digitValue(text.front()) != notADigit) {
        return true;
    }
    for (std::uint8_t code = 0; code <= static_cast<std::uint8_t>(TokenClass::Arrow); ++code) {
        if (tokenLength(static_cast<TokenClass>(code), text, 0) == text.size()) {
            return true;
        }
    }
    return readBasePrefix(text, 0).length == text.size();
}

TEST(EveryButton, OfAKeypadTypesATokenOrEdits) {
    forEveryButton([](const PanelEntry& panel, const PanelButton& button) {
        EXPECT_NE(button.label.empty(), button.symbol == Symbol::None);
        const char first = characterAt(button.label, 0);
        const bool isDigit =
            button.label.size() == 1 && ((first >= '0' && first <= '9') || (first >= 'A' && first <= 'Z'));
        EXPECT_EQ(button.description.empty(), isDigit && panel.group == PanelGroup::Keypads);
        if (panel.group != PanelGroup::Keypads) {
            return;
        }
        const ButtonAction action = actionOf(panel, button, {"255 '2", 1, 1}, None);
        if (const auto* const typing = std::get_if<TypeCharacters>(&action)) {
            EXPECT_TRUE(isToken(typing->characters));
            EXPECT_EQ(button.label, button.symbol == Symbol::Space ? "" : typing->characters);
        } else {
            EXPECT_FALSE(std::holds_alternative<NoAction>(action));
        }
    });
}

}  // namespace
}  // namespace calquo
