// The panels' buttons in the real window: each is pressed, and opening panels again and again leaves nothing behind.
#include <gtest/gtest.h>

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

TEST(PanelButtons, TheEditingButtonsEditAsKeysDo) {
    struct Row {
        std::string_view button;
        const wchar_t* text;
        std::size_t caret;
    };
    const Row rows[] = {
        {"Erase previous character", L"2+4", 2}, {"Undo last edit", L"2+34", 3},
        {"Erase next character", L"2+3", 3},     {"Undo last edit", L"2+34", 3},
        {"Redo last undone", L"2+3", 3},         {"Enter (evaluate)", L"2+3 = 5\n\n5", 10},
        {"Clear the work area", L"", 0},         {"Undo last edit", L"2+3 = 5\n\n5", 10},
    };
    Program program;
    program.command(editing);
    program.setText(L"2+34");
    program.select(3, 3);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.button);
        for (const HWND button : program.buttonsOf(editing)) {
            if (Component::of(button)->description() == row.button) {
                Program::click(button);
            }
        }
        EXPECT_EQ(program.text(), row.text);
    }
}

TEST(PanelButtons, AnInsertionKeepsForeignCharactersAndIsOneStepForUndo) {
    Program program;
    program.command(0xA331);
    const std::wstring line = L"7+\u221E\U0001F600";
    program.setText(line);
    program.select(2, line.size());
    for (const HWND button : program.buttonsOf(0xA331)) {
        if (Component::of(button)->label() == "sqrt") {
            Program::click(button);
        }
    }
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
    ASSERT_GT(before.drawingObjects, 0);
    ASSERT_GT(before.windows, 0);
    ShowWindow(program.handle(), SW_HIDE);
    // Painting takes five times as long as all the rest, so that a part of the rounds must do for it.
    openAndCloseAll(195);
    ShowWindow(program.handle(), SW_SHOW);
    openAndCloseAll(5);
    const Resources after = heldResources();
    // The system keeps one or two more or less for its own painting. Whatever we forget is there 200 times.
    EXPECT_LT(after.drawingObjects, before.drawingObjects + 10);
    EXPECT_EQ(after.windows, before.windows);
}

}  // namespace
}  // namespace calquo
