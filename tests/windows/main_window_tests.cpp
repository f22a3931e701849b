// The program's window: its own caption, the column of panels, the work area beside it, and what it remembers.
#include "shell/main_window.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "dialog_keys.h"
#include "file_folder.h"
#include "panels/catalogue.h"
#include "program.h"
#include "resources.h"
#include "shell/command_ids.h"
#include "shell/menu_tree.h"
#include "support/allocations.h"
#include "widgets/button.h"
#include "widgets/kept_exception.h"
#include "widgets/toolkit.h"

namespace calquo {
namespace {

constexpr unsigned basicKeypad = 0xA110, operators = 0xA114, angles = 0xA010, lengths = 0xA550;
constexpr unsigned hideButtons = 0x8010, leftCaption = 0x9011, rightCaption = 0x9012;

MemoryStorage storedRectangle(LONG left, LONG top, LONG right, LONG bottom) {
    MemoryStorage storage;
    Settings(storage).setWindowRect({left, top, right, bottom});
    return storage;
}

MemoryStorage storedPanels(const std::vector<std::uint32_t>& identifiers) {
    SettingBlock block(identifiers.size() * 4);
    std::memcpy(block.data(), identifiers.data(), block.size());
    MemoryStorage storage;
    storage.values[L"Selected Panels"] = block;
    return storage;
}

RECT placeOnScreen(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

std::string shown(const RECT& place) {
    return std::to_string(place.left) + "," + std::to_string(place.top) + " - " + std::to_string(place.right) + "," +
           std::to_string(place.bottom);
}

/// The parts cover the client area as the layout says, whatever their sizes are.
void expectLaidOut(const Program& program, const std::vector<unsigned>& panels) {
    const RECT client = program.client();
    const RECT left = program.placeOf(program.child(leftCaption));
    const RECT right = program.placeOf(program.child(rightCaption));
    EXPECT_EQ(shown(left), shown({0, 0, left.right, left.bottom}));
    EXPECT_EQ(right.top, 0);
    EXPECT_EQ(right.right, client.right);
    LONG top = left.bottom, edge = 0;
    for (const unsigned identifier : panels) {
        const RECT panel = program.placeOf(program.child(identifier));
        EXPECT_EQ(panel.left, 0) << std::hex << identifier;
        EXPECT_EQ(panel.top, top) << std::hex << identifier;
        top = panel.bottom;
        edge = std::max(edge, panel.right);
    }
    EXPECT_LE(top, client.bottom);
    EXPECT_EQ(shown(program.placeOf(program.workArea())), shown({edge, left.bottom, client.right, client.bottom}));
}

TEST(MainWindow, FollowsTheScaleOfItsScreen) {
    Program program(storedPanels({basicKeypad, angles}));
    const RECT place = placeOnScreen(program.handle());
    program.command(0x4511);  // the dialog of Automatic
    const HWND dialog = FindWindowW(L"Format", nullptr);
    const RECT dialogBefore = placeOnScreen(dialog);
    const SIZE usual{dialogBefore.right - dialogBefore.left, dialogBefore.bottom - dialogBefore.top};
    for (const int dots : {144, 192, 240, 120, 96}) {
        RECT suggested{place.left, place.top, place.left + 400 * dots / 96, place.top + 320 * dots / 96};
        SendMessageW(program.handle(), WM_DPICHANGED, MAKEWPARAM(dots, dots), reinterpret_cast<LPARAM>(&suggested));
        EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(suggested)) << dots;
        const RECT caption = program.placeOf(program.child(leftCaption));
        EXPECT_EQ(caption.bottom, buttonSize()) << dots;
        EXPECT_EQ(buttonSize(), 20 * dots / 96);
        expectLaidOut(program, {basicKeypad, angles});

        RECT wanted{10, 10, 20, 20};
        SendMessageW(dialog, WM_DPICHANGED, MAKEWPARAM(dots, dots), reinterpret_cast<LPARAM>(&wanted));
        const RECT grown = placeOnScreen(dialog);
        EXPECT_NEAR(grown.right - grown.left, usual.cx * dots / 96, 20 * dots / 96) << dots;
        EXPECT_NEAR(grown.bottom - grown.top, usual.cy * dots / 96, 40 * dots / 96) << dots;
        EXPECT_EQ(buttonSize(), 20 * dots / 96) << "the dialog's scale is its own";
    }
    SendMessageW(dialog, WM_CLOSE, 0, 0);
}

TEST(MainWindow, OpensAndClosesPanelsInTheirOrder) {
    Program program;
    const LONG widest = program.placeOf(program.workArea()).right;
    program.command(lengths);
    program.command(basicKeypad);
    program.command(angles);
    for (const SIZE size : {SIZE{700, 500}, SIZE{300, 200}, SIZE{900, 600}, SIZE{1, 1}}) {
        SetWindowPos(program.handle(), nullptr, 50, 60, size.cx, size.cy, SWP_NOZORDER);
        expectLaidOut(program, {lengths, basicKeypad, angles});
    }
    program.command(basicKeypad);
    EXPECT_EQ(program.child(basicKeypad), nullptr);
    EXPECT_FALSE(program.window().isChecked(basicKeypad));
    expectLaidOut(program, {lengths, angles});
    program.command(hideButtons);
    program.command(basicKeypad);
    EXPECT_TRUE(program.window().isChecked(basicKeypad));
    EXPECT_EQ(program.placeOf(program.workArea()).left, 0);
    EXPECT_FALSE(IsWindowVisible(program.child(lengths)) || IsWindowVisible(program.child(basicKeypad)));
    program.command(hideButtons);
    expectLaidOut(program, {lengths, angles, basicKeypad});
    const RECT window = placeOnScreen(program.handle());
    EXPECT_EQ(SendMessageW(program.handle(), WM_NCHITTEST, 0, MAKELPARAM(window.right - 1, window.bottom - 1)),
              HTBOTTOMRIGHT);
    for (const unsigned panel : {lengths, angles, basicKeypad}) {
        program.command(panel);
    }
    SetWindowPos(program.handle(), nullptr, 50, 60, widest, 500, SWP_NOZORDER);
    expectLaidOut(program, {});
    program.close();
    EXPECT_EQ(std::get<SettingBlock>(program.storage().values.at(L"Selected Panels")).size(), 0u);
}

TEST(MainWindow, EveryPanelOfTheCatalogueOpensWithRowsThatFillItAtEverySize) {
    for (const int size : {12, 13, 20, 25, 33, 40}) {
        MemoryStorage storage;
        storage.values[L"Button Size"] = static_cast<std::uint32_t>(size);
        Program program(std::move(storage));
        for (const PanelEntry& entry : panelCatalogue()) {
            SCOPED_TRACE(testing::Message() << entry.menuLabel << ", size " << size);
            program.command(entry.identifier);
            expectLaidOut(program, {entry.identifier});
            const RECT panel = program.placeOf(program.child(entry.identifier));
            const LONG margin = size / 4;
            const std::vector<HWND> buttons = program.buttonsOf(entry.identifier);
            auto button = buttons.begin();
            LONG top = panel.top + margin;
            for (const PanelRow row : entry.rows) {
                LONG left = margin;
                for (std::size_t column = 0; column < row.size(); ++column, ++button) {
                    ASSERT_NE(button, buttons.end());
                    const RECT place = program.placeOf(*button);
                    EXPECT_EQ(shown(place), shown({left, top, place.right, top + size}));
                    EXPECT_TRUE(place.right > left && IsWindowVisible(*button));
                    EXPECT_EQ(Component::of(*button)->label(), row[column].label);
                    left = place.right;
                }
                const LONG lack = panel.right - margin - left;
                EXPECT_TRUE(lack == 0 || 2 * lack >= size) << "row " << top << " lacks " << lack;
                top += size;
            }
            EXPECT_EQ(button, buttons.end());
            program.command(entry.identifier);
        }
    }
}

TEST(MainWindow, RemembersItsPanelsInTheirOrder) {
    Program program(storedPanels({lengths, 0x1234, basicKeypad, lengths, 0xA9999, leftCaption, angles}));
    expectLaidOut(program, {lengths, basicKeypad, angles});
    EXPECT_TRUE(program.window().isChecked(angles));
    settle();
    EXPECT_EQ(program.buttonsOf(basicKeypad).size(), 24u) << "are made when nothing else is left to do";
    program.command(lengths);
    program.command(lengths);
    program.close();
    EXPECT_EQ(program.storage().values.at(L"Selected Panels"),
              storedPanels({basicKeypad, angles, lengths}).values.at(L"Selected Panels"));
}

TEST(MainWindow, StandsWhereItStoodUnlessNoScreenShowsIt) {
    const RECT stood{70, 80, 770, 480};
    EXPECT_EQ(shown(placeOnScreen(Program(storedRectangle(70, 80, 770, 480)).handle())), shown(stood));
    const RECT half = placeOnScreen(Program().handle());
    RECT usable{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &usable, 0);
    EXPECT_EQ(half.right - half.left, (usable.right - usable.left) / 2);
    EXPECT_EQ(half.bottom - half.top, (usable.bottom - usable.top) / 2);
    for (const RECT& hostile : {RECT{-32000, -32000, -31840, -31972}, RECT{700, 400, 100, 100},
                                RECT{100, 100, 100, 100}, RECT{0, 0, 1 << 30, 1 << 30}}) {
        const Program program(storedRectangle(hostile.left, hostile.top, hostile.right, hostile.bottom));
        EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(half)) << shown(hostile);
    }
    // Maximized on a screen that is gone, with the edge of its frame on one that is there.
    const RECT gone{usable.right - 3, usable.top - 3, usable.right + 3000, usable.bottom + 3};
    EXPECT_EQ(shown(placeOnScreen(Program(storedRectangle(gone.left, gone.top, gone.right, gone.bottom)).handle())),
              shown(usable));
}

TEST(MainWindow, GoesBackToItsSizeWhenThePanelsClose) {
    Program program(storedRectangle(70, 80, 370, 280));
    const RECT before = placeOnScreen(program.handle());
    program.command(lengths);
    program.command(basicKeypad);
    const RECT grown = placeOnScreen(program.handle());
    EXPECT_GT(grown.bottom, before.bottom);
    program.command(hideButtons);
    EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(before));
    program.command(hideButtons);
    EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(grown));
    SetWindowPos(program.handle(), nullptr, 10, 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    program.command(lengths);
    program.command(basicKeypad);
    EXPECT_EQ(shown(placeOnScreen(program.handle())), shown({10, 20, 310, 220}));
}

TEST(MainWindow, OneWhoseStartOrEndFailsLeavesNothing) {
    const MemoryStorage storage = storedPanels({basicKeypad, lengths});
    { const Program whole(storage); }
    const int windows = heldResources().windows;
    bool failed = true;
    for (int count = 0; failed; count += 1 + count / 8) {
        {
            const FailingAllocation allocation(count);
            try {
                const Program program(storage);
            } catch (const std::bad_alloc&) {
                // As for the program's entry point.
            }
            failed = allocation.hasFailed();
        }
        try {
            rethrowKeptException();  // of the window's end
        } catch (const std::bad_alloc&) {
            EXPECT_TRUE(failed);
        }
        ASSERT_EQ(heldResources().windows, windows) << count;
    }
    Program after(storage);
    after.setText(L"2+3");
    SendMessageW(after.workArea(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(after.text(), L"2+3 = 5\n\n5");
}

TEST(MainWindow, StoresEveryRectangleThatTheSystemReports) {
    Program program;
    MoveWindow(program.handle(), 10, 20, 690, 480, TRUE);
    EXPECT_EQ(program.settings().windowRect(), (ScreenRectangle{10, 20, 700, 500}));
    EXPECT_EQ(program.storage().written.back(), L"Window Rect");
}

TEST(MainWindow, MaximizedItsClientAreaFillsTheUsableArea) {
    Program program;
    const RECT window = placeOnScreen(program.handle());
    const auto clientOnScreen = [&] {
        RECT inner = program.client();
        MapWindowPoints(program.handle(), nullptr, reinterpret_cast<POINT*>(&inner), 2);
        return inner;
    };
    const RECT inner = clientOnScreen();
    RECT usable{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &usable, 0);
    const RECT expected{usable.left - (inner.left - window.left), usable.top - (inner.top - window.top),
                        usable.right + (window.right - inner.right), usable.bottom + (window.bottom - inner.bottom)};
    MINMAXINFO limits{};
    SendMessageW(program.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    // Of a maximized window the system wants the size, and how large it may be made.
    const POINT at = limits.ptMaxPosition;
    for (const POINT size : {limits.ptMaxSize, limits.ptMaxTrackSize}) {
        EXPECT_EQ(shown({at.x, at.y, at.x + size.x, at.y + size.y}), shown(expected));
    }
    ShowWindow(program.handle(), SW_MAXIMIZE);
    EXPECT_EQ(shown(clientOnScreen()), shown(usable));
    // The system may work out another place, as for a screen beside the main one.
    SetWindowPos(program.handle(), nullptr, 100, 50, 1000, 400, SWP_NOZORDER);
    EXPECT_EQ(shown(clientOnScreen()), shown(usable));
    ShowWindow(program.handle(), SW_RESTORE);
    EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(window));
}

TEST(MainWindow, MorePanelsThanTheScreenIsHighDoNotPushItsEdgeOutOfReach) {
    Program program;
    for (const PanelEntry& entry : panelCatalogue()) {
        program.command(entry.identifier);
    }
    MINMAXINFO limits{};
    SendMessageW(program.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
}

TEST(MainWindow, ASmallStoredRectangleStaysWhereItIs) {
    MemoryStorage storage = storedPanels({basicKeypad, lengths, angles});
    Settings(storage).setWindowRect({100, 100, 200, 150});
    const Program program(storage);
    const RECT place = placeOnScreen(program.handle());
    EXPECT_TRUE(place.left == 100 && place.top == 100) << shown(place);
    expectLaidOut(program, {basicKeypad, lengths, angles});
}

TEST(MainWindow, TheEndOfTheSessionSavesEverything) {
    Program program;
    program.command(basicKeypad);
    program.command(0x142);
    SendMessageW(program.handle(), WM_ENDSESSION, TRUE, 0);
    Settings saved(program.storage());
    saved.loadAll();
    EXPECT_EQ(saved.selectedPanels(), std::vector<std::uint16_t>{basicKeypad});
    EXPECT_TRUE(saved.boolean(BooleanSetting::ReadDefaultAtStartup));
}

TEST(MainWindow, AltAloneOpensTheMenuOnce) {
    struct Row {
        UINT message;
        WPARAM key;
        LPARAM repeat;
        int held;
        bool opens;
    };
    constexpr LPARAM again = LPARAM{1} << 30;
    const Row rows[] = {
        {WM_SYSKEYDOWN, VK_MENU, 0, 0, true},
        {WM_SYSKEYDOWN, VK_F10, 0, 0, true},
        {WM_SYSKEYDOWN, VK_MENU, again, 0, false},
        {WM_SYSKEYDOWN, VK_MENU, 0, VK_SHIFT, false},  // switches the keyboard's layout
        {WM_KEYDOWN, VK_MENU, 0, VK_CONTROL, false},   // AltGr
    };
    Program program;
    for (const Row& row : rows) {
        program.menusOpened = 0;
        program.press(program.workArea(), row.message, row.key, row.repeat, row.held);
        EXPECT_EQ(program.menusOpened, row.opens ? 1 : 0) << row.message << " " << row.key << " " << row.held;
    }
}

// --- Commands -------------------------------------------------------------------------------------------------------

TEST(MainWindow, StaysOnTopWhileItsSystemMenuSaysSo) {
    Program program;
    const auto entry = [&] {
        const HMENU menu = GetSystemMenu(program.handle(), FALSE);
        MENUITEMINFOW item{};
        for (int place = 0; item.wID == 0 || item.wID >= 0xF000; ++place) {
            item.cbSize = sizeof item;
            item.fMask = MIIM_ID | MIIM_STATE;
            EXPECT_NE(GetMenuItemInfoW(menu, static_cast<UINT>(place), TRUE, &item), 0);
        }
        return item;
    };
    for (const bool on : {true, false, true}) {
        program.storage().written.clear();
        SendMessageW(program.handle(), WM_SYSCOMMAND, entry().wID, 0);
        EXPECT_EQ((GetWindowLongW(program.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, on);
        EXPECT_EQ((entry().fState & MFS_CHECKED) != 0, on);
        std::erase(program.storage().written, L"Window Rect");
        EXPECT_TRUE(program.storage().written.empty()) << "is for this run alone";
    }
}

TEST(Commands, OptionsAreAMarkAndASetting) {
    const std::pair<std::uint16_t, BooleanSetting> rows[] = {{0x142, BooleanSetting::ReadDefaultAtStartup},
                                                             {0x143, BooleanSetting::SaveDefaultAtExit},
                                                             {hideButtons, BooleanSetting::HideButtons}};
    Program program;
    for (const auto& [command, setting] : rows) {
        for (const bool on : {true, false}) {
            program.command(command);
            EXPECT_EQ(program.window().isChecked(command), on) << command;
            EXPECT_EQ(program.settings().boolean(setting), on) << command;
        }
    }
}

TEST(Commands, OfTheAnglesOneAtMostIsOnAndButtonsAddIt) {
    constexpr std::uint16_t entries[] = {0x8031, 0x8032, 0x8033};
    const std::pair<unsigned, const wchar_t*> presses[] = {{0x8031, L"sin(30 deg)"}, {0x8032, L"sin(30 grad)"},
                                                           {0x8032, L"sin(30)"},     {0x8033, L"sin(30 rad)"},
                                                           {0x8031, L"sin(30 deg)"}, {0x8031, L"sin(30)"}};
    Program program;
    program.command(angles);
    for (const auto& [pressed, text] : presses) {
        program.command(pressed);
        program.setText(L"30");
        program.select(0, 2);
        Program::click(program.buttonsOf(angles).front());
        EXPECT_EQ(program.text(), text);
        for (const std::uint16_t entry : entries) {
            EXPECT_EQ(program.window().isChecked(entry), entry == pressed && text != std::wstring_view(L"sin(30)"));
        }
    }
}

TEST(Commands, TheSelectedFormatIsTheResults) {
    const std::pair<std::uint16_t, const wchar_t*> rows[] = {{0x512, L"20000.5*2 = 4.0001e+4\n\n4.0001e+4"},
                                                             {0x515, L"20000.5*2 = 4,0001\n\n4,0001"},
                                                             {0x516, L"20000.5*2 = 40001\n\n40001"},
                                                             {0x511, L"20000.5*2 = 40,001\n\n40,001"}};
    Program program;
    for (const auto& [command, record] : rows) {
        program.command(command);
        program.setText(L"20000.5*2");
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_EQ(program.text(), record) << std::hex << command;
        for (std::uint16_t entry = 0x511; entry <= 0x517; ++entry) {
            EXPECT_EQ(program.window().isChecked(entry), entry == command);
        }
    }
}

void expectCommands(const std::vector<MenuEntry>& entries) {
    for (const MenuEntry& entry : entries) {
        const bool isChosen = entry.kind != MenuKind::Separator && entry.kind != MenuKind::Submenu;
        EXPECT_EQ(Commands::knows(entry.identifier), isChosen) << entry.label;
        expectCommands(entry.children);
    }
}

TEST(Commands, EveryEntryOfTheMenuHasOne) { expectCommands(mainMenu()); }

TEST(Commands, UnknownOnesAndThoseOfControlsDoNothing) {
    Program program;
    program.setText(L"2+3");
    for (const unsigned identifier : {0u, 0x7u, 0x4518u, 0xA001u, 0xDFFFu, 0xFFFFu}) {
        program.command(identifier);
    }
    for (const unsigned notification : {0u, 1u, 4u}) {
        SendMessageW(program.handle(), WM_COMMAND, MAKEWPARAM(0x120, notification),
                     reinterpret_cast<LPARAM>(program.workArea()));
    }
    EXPECT_EQ(program.text(), L"2+3");
    expectLaidOut(program, {});
}

/// Opens what there is to be opened, and ends with all of it open.
void live() {
    const FileFolder folder;
    MemoryStorage storage;
    storage.values[L"Default File"] = folder.path(L"sheet.rtf");
    Program program(storage, {[](WindowHandle, const BoxText&) { return BoxAnswer::Cancel; },
                              [](WindowHandle, const FileRequest&) { return FileChoice{}; }});
    for (const unsigned panel : {basicKeypad, angles, lengths}) {
        program.command(panel);
        Program::click(program.buttonsOf(panel).front());
    }
    for (const wchar_t* const line : {L"fact(20)/7", L"2+"}) {
        program.setText(line);
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_F9, 1);
    }
    program.command(identifierOf(Command::SaveDefaultFile));
    program.command(identifierOf(Command::ReadDefaultFile));
    folder.put(L"sheet.rtf", "no rich text");
    program.command(identifierOf(Command::ReadDefaultFile));
    program.command(identifierOf(Command::About));
    program.command(modifyFormatCommands.first);
}

TEST(MainWindow, LeavesNoMemoryBehind) {
    live();  // what is made once and kept
    const Resources before = heldResources();
    live();
    const Resources after = heldResources();
    EXPECT_EQ(after.allocations, before.allocations);
    EXPECT_EQ(after.windows, before.windows);
}

}  // namespace
}  // namespace calquo
