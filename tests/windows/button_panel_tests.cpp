// The panels' buttons in the real window: each is pressed, and opening panels again and again leaves nothing behind.
#include <gtest/gtest.h>

#include <algorithm>

#include "panels/button_action.h"
#include "panels/catalogue.h"
#include "program.h"
#include "resources.h"
#include "widgets/button.h"
#include "widgets/wide_text.h"

namespace calquo {
namespace {

constexpr unsigned editing = 0xA111;

/// What an action makes of a line of plain characters, without a window.
struct Carried {
    std::string line;
    std::size_t caret;

    void operator()(NoAction) const {}
    void operator()(EditingOperation) const { FAIL() << "the editing buttons have a test of their own"; }
    void operator()(TypeCharacters typing) {
        line.replace(begin, end - begin, typing.characters);
        caret = begin + typing.characters.size();
    }
    void operator()(const SurroundCharacters& change) {
        line.insert(change.end, change.after);
        line.insert(change.begin, change.before);
        caret = change.caret;
    }
    void operator()(const ReplaceCharacters& change) {
        line.replace(change.begin, change.end - change.begin, change.text);
        caret = change.caret;
    }

    std::size_t begin = 0, end = 0;
};

TEST(PanelButtons, EachDoesItsActionToTheSelection) {
    constexpr std::string_view line = "1+30*x";
    constexpr std::size_t begin = 2, end = 4;
    for (const PanelEntry& entry : panelCatalogue()) {
        Program program;
        program.command(entry.identifier);
        const std::vector<HWND> windows = program.buttonsOf(entry.identifier);
        std::size_t place = 0;
        for (const PanelRow row : entry.rows) {
            for (const PanelButton& button : row) {
                SCOPED_TRACE(std::string(entry.menuLabel) + ": " + std::string(button.label));
                const HWND window = windows.at(place++);
                ASSERT_EQ(Component::of(window)->label(), button.label);
                const ButtonAction action = actionOf(entry.identifier, button, {line, begin, end}, AngleOption::None);
                if (std::holds_alternative<EditingOperation>(action)) {
                    continue;
                }
                program.setText(wideText(line));
                program.select(begin, end);
                Program::click(window);
                Carried expected{std::string(line), end, begin, end};
                std::visit(expected, action);
                EXPECT_EQ(program.text(), wideText(expected.line));
                EXPECT_EQ(program.caret(), expected.caret);
            }
        }
    }
}

/// The button of a panel with this label or description.
HWND buttonOf(const Program& program, unsigned panel, std::string_view name) {
    const std::vector<HWND> buttons = program.buttonsOf(panel);
    return *std::find_if(buttons.begin(), buttons.end(), [&](HWND button) {
        return Component::of(button)->label() == name || Component::of(button)->description() == name;
    });
}

TEST(PanelButtons, TheEditingButtonsEditAsKeysDo) {
    const std::pair<std::string_view, std::wstring_view> rows[] = {
        {"Erase previous character", L"2+4"}, {"Undo last edit", L"2+34"},
        {"Erase next character", L"2+3"},     {"Undo last edit", L"2+34"},
        {"Redo last undone", L"2+3"},         {"Enter (evaluate)", L"2+3 = 5\n\n5"},
        {"Clear the work area", L""},         {"Undo last edit", L"2+3 = 5\n\n5"},
    };
    Program program;
    program.command(editing);
    program.setText(L"2+34");
    program.select(3, 3);
    for (const auto& [button, text] : rows) {
        Program::click(buttonOf(program, editing, button));
        EXPECT_EQ(program.text(), text) << button;
    }
}

TEST(PanelButtons, AnInsertionKeepsForeignCharactersAndIsOneStepForUndo) {
    Program program;
    program.command(0xA331);
    const std::wstring line = L"7+\u221E\U0001F600";
    program.setText(line);
    program.select(2, line.size());
    Program::click(buttonOf(program, 0xA331, "sqrt"));
    EXPECT_EQ(program.text(), L"7+ sqrt(\u221E\U0001F600)");
    SendMessageW(program.workArea(), EM_UNDO, 0, 0);
    EXPECT_EQ(program.text(), line);
}

TEST(PanelButtons, OpeningAndClosingEveryPanelLeavesNothingBehind) {
    Program program;
    const auto openAndCloseAll = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            for (const PanelEntry& entry : panelCatalogue()) {
                program.command(entry.identifier);
                program.command(entry.identifier);
            }
        }
    };
    openAndCloseAll(1);  // what is made once and kept
    const Resources before = heldResources();
    ASSERT_TRUE(before.drawingObjects > 0 && before.windows > 0);
    // Painting takes five times as long as all the rest, so that a part of the rounds must do for it.
    ShowWindow(program.handle(), SW_HIDE);
    openAndCloseAll(195);
    ShowWindow(program.handle(), SW_SHOW);
    openAndCloseAll(5);
    const Resources after = heldResources();
    // The system keeps one or two more or less for its own painting. What one panel forgets is there 200 times.
    EXPECT_LT(after.drawingObjects, before.drawingObjects + 10);
    EXPECT_EQ(after.windows, before.windows);
}

}  // namespace
}  // namespace calquo
