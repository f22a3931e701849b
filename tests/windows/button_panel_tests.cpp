// The panels' buttons in the real window: some of each kind are pressed, and many openings leave nothing behind.
#include <gtest/gtest.h>

#include <algorithm>

#include "panels/catalogue.h"
#include "program.h"
#include "resources.h"
#include "widgets/button.h"

namespace calquo {
namespace {

constexpr unsigned editing = 0xA111;

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

TEST(PanelButtons, TheOthersKeepForeignCharactersAndAreOneStepForUndo) {
    struct Row {
        unsigned panel;
        std::string_view button;
        const wchar_t* after;
    };
    const Row rows[] = {
        {0xA331, "sqrt", L"7+ sqrt(\u221E\U0001F600) '2"},
        {0xA113, "'16", L"7+\u221E\U0001F600 '16"},
        {0xA114, "**", L"7+** '2"},
        {0xA550, "km", L"7+ km \u221E\U0001F600 '2"},
    };
    const std::wstring line = L"7+\u221E\U0001F600 '2";
    Program program;
    for (const Row& row : rows) {
        program.command(row.panel);
        program.setText(line);
        program.select(2, 5);
        Program::click(buttonOf(program, row.panel, row.button));
        EXPECT_EQ(program.text(), row.after) << row.button;
        SendMessageW(program.workArea(), EM_UNDO, 0, 0);
        EXPECT_EQ(program.text(), line) << row.button;
    }
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
