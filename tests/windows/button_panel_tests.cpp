// The panels' buttons in the real window: each is pressed, and much opening and painting leaves nothing behind.
#include <gtest/gtest.h>

#include <algorithm>

#include "panels/catalogue.h"
#include "program.h"
#include "resources.h"
#include "widgets/button.h"
#include "widgets/wide_text.h"

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

/// What a button of a group puts around the selection, after its name.
struct Affixes {
    std::string_view before, after;
};

Affixes affixesOf(PanelGroup group, std::string_view name) {
    struct Row {
        PanelGroup group;
        std::string_view names;  ///< Empty for all others of the group.
        Affixes affixes;
    };
    using enum PanelGroup;
    static constexpr Row rows[] = {
        {BitLevel, " bNot ", {"(", "|)"}},
        {BitLevel, "", {"(", "|; )"}},
        {Financial, " fv pv ", {"(", "|; 1 year; 5%; month; 0; month)"}},
        {Financial, " pmt ", {"(", "|; ; 1 year; 5%; month; month)"}},
        {Financial, " dur ", {"(", "|; ; 5%; month; 0; month) -> yr"}},
        {Financial, " rate ", {"(", "|; ; 1 year; month; 0; month)"}},
        {Mathematics, " root logB ", {"(|; ", ")"}},
        {Mathematics, " add sub mul div mod rem polar pow rndR ", {"(", "|; )"}},
        {Mathematics, " rnd rndC rndG rndCG ", {" ", "|"}},
        {Mathematics, "", {"(", "|)"}},
        {Statistics, "", {"(", "|)"}},
        {Trigonometric, "", {"(", "|)"}},
        {Units, "", {" ", "|"}},
    };
    const std::string word = ' ' + std::string(name) + ' ';
    const auto* const found = std::ranges::find_if(rows, [&](const Row& row) {
        return row.group == group && (row.names.empty() || row.names.find(word) != std::string_view::npos);
    });
    return found->affixes;
}

/// What a button makes of "1+30*2" with "30" selected; "|" is the caret.
std::string expectedOf(PanelGroup group, const Button& button) {
    switch (button.symbol()) {
        case Symbol::EraseBack:
        case Symbol::EraseNext:
            return "1+|*2";
        case Symbol::Enter:
            return "1+30*2 = 61\n\n61|";
        case Symbol::Clear:
        case Symbol::Undo:
            return "|";
        case Symbol::Redo:
            return "1+30|*2";
        case Symbol::Space:
            return "1+ |*2";
        default:
            break;
    }
    const std::string label(button.label());
    if (group == PanelGroup::Keypads) {
        const bool asksForBase = label.size() > 1 && label.front() == '\'';
        return label == "10" ? "1+30|*2" : asksForBase ? "1+30|*2 " + label : "1+" + label + "|*2";
    }
    const auto [before, after] = affixesOf(group, label);
    const std::string name = label == "inHg" ? "inchHg" : label;
    return "1+ " + name + std::string(before) + "30" + std::string(after) + " *2";
}

TEST(PanelButtons, EachDoesItsActionToTheSelection) {
    Program program;
    for (const PanelEntry& entry : panelCatalogue()) {
        program.command(entry.identifier);
        for (const HWND window : program.buttonsOf(entry.identifier)) {
            const auto& button = dynamic_cast<const Button&>(*Component::of(window));
            program.setText(L"");
            program.setText(L"1+30*2");
            program.select(2, 4);
            Program::click(window);
            std::wstring text = program.text();
            text.insert(program.caret(), 1, L'|');
            EXPECT_EQ(text, wideText(expectedOf(entry.group, button))) << entry.menuLabel << ": " << button.text();
        }
        program.command(entry.identifier);
    }
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

/// What the system keeps for its own painting, more or less. What we forget is there 200 times.
constexpr int ofTheSystem = 2;

TEST(PanelButtons, OpeningAndClosingEveryPanelLeavesNothingBehind) {
    Program program;
    const auto openAndCloseAll = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            for (const PanelEntry& entry : panelCatalogue()) {
                program.command(entry.identifier);
                program.command(entry.identifier);
            }
            program.storage().written.clear();  // grows with every setting
        }
    };
    const auto openAndCloseAllHidden = [&](int rounds) {
        ShowWindow(program.handle(), SW_HIDE);
        openAndCloseAll(rounds);
        ShowWindow(program.handle(), SW_SHOW);
    };
    // What is made once and kept, by painting and without.
    openAndCloseAll(1);
    openAndCloseAllHidden(3);
    const Resources before = heldResources();
    ASSERT_TRUE(before.drawingObjects > 0 && before.windows > 0);
    // Without painting, which takes five times as long as all the rest and is looked at below.
    openAndCloseAllHidden(200);
    const Resources after = heldResources();
    EXPECT_LE(after.drawingObjects, before.drawingObjects + ofTheSystem);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LT(after.allocations, before.allocations + 100) << "less than one for two rounds";
}

TEST(PanelButtons, PaintingEveryPanelLeavesNothingBehind) {
    const auto paint = [](HWND window, int times) {
        for (int time = 0; time < times; ++time) {
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
    };
    Program program;
    for (const PanelEntry& entry : panelCatalogue()) {
        program.command(entry.identifier);
        // Together with its buttons, and one of these alone.
        for (const HWND window : {program.child(entry.identifier), program.buttonsOf(entry.identifier).front()}) {
            ASSERT_TRUE(IsWindowVisible(window));
            paint(window, 1);  // what is made once and kept
            const int before = heldResources().drawingObjects;
            paint(window, 200);
            EXPECT_LE(heldResources().drawingObjects, before + ofTheSystem) << entry.menuLabel;
        }
        program.command(entry.identifier);
    }
}

}  // namespace
}  // namespace calquo
