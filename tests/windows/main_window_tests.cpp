// The program's window: its own caption, the column of panels, the work area beside it, and what it remembers.
#include "shell/main_window.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "panels/catalogue.h"
#include "program.h"
#include "shell/command_ids.h"
#include "shell/message_loop.h"
#include "widgets/button.h"
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

TEST(MainWindow, IsFoundByItsTitleAsItsClass) {
    const Program program;
    std::array<wchar_t, 100> title{};
    GetWindowTextW(program.handle(), title.data(), static_cast<int>(title.size()));
    EXPECT_EQ(std::wstring(title.data()).rfind(L"Calquo 2.0 - ", 0), 0u) << title.data();
    EXPECT_EQ(FindWindowW(title.data(), title.data()), program.handle());
}

TEST(MainWindow, LaysItsPartsOutAtEverySize) {
    Program program;
    program.command(basicKeypad);
    program.command(lengths);
    for (const SIZE size : {SIZE{700, 500}, SIZE{300, 200}, SIZE{900, 600}, SIZE{1, 1}}) {
        SetWindowPos(program.handle(), nullptr, 50, 60, size.cx, size.cy, SWP_NOZORDER);
        expectLaidOut(program, {basicKeypad, lengths});
    }
}

TEST(MainWindow, OpensAndClosesPanelsInTheirOrder) {
    Program program;
    const LONG widest = program.placeOf(program.workArea()).right;
    program.command(lengths);
    program.command(basicKeypad);
    program.command(angles);
    expectLaidOut(program, {lengths, basicKeypad, angles});
    program.command(basicKeypad);
    EXPECT_EQ(program.child(basicKeypad), nullptr);
    EXPECT_FALSE(program.window().isChecked(basicKeypad));
    expectLaidOut(program, {lengths, angles});
    program.command(basicKeypad);
    EXPECT_TRUE(program.window().isChecked(basicKeypad));
    expectLaidOut(program, {lengths, angles, basicKeypad});
    for (const unsigned panel : {lengths, angles, basicKeypad}) {
        program.command(panel);
    }
    expectLaidOut(program, {});
    EXPECT_EQ(program.placeOf(program.workArea()).right, widest);
    program.close();
    EXPECT_EQ(std::get<SettingBlock>(program.storage().values.at(L"Selected Panels")).size(), 0u);
}

TEST(MainWindow, EveryPanelOfTheCatalogueOpensWithAllItsButtonsInView) {
    for (const PanelEntry& entry : panelCatalogue()) {
        SCOPED_TRACE(entry.menuLabel);
        Program program;
        program.command(entry.identifier);
        expectLaidOut(program, {entry.identifier});
        std::size_t expected = 0;
        for (const PanelRow row : entry.rows) {
            expected += row.size();
        }
        const std::vector<HWND> buttons = program.buttonsOf(entry.identifier);
        EXPECT_EQ(buttons.size(), expected);
        const RECT panel = program.placeOf(program.child(entry.identifier));
        for (const HWND button : buttons) {
            const RECT place = program.placeOf(button);
            RECT common{};
            IntersectRect(&common, &place, &panel);
            EXPECT_TRUE(EqualRect(&common, &place)) << Component::of(button)->label();
            EXPECT_EQ(place.bottom - place.top, buttonSize());
            EXPECT_TRUE(IsWindowVisible(button));
        }
    }
}

TEST(MainWindow, HiddenButtonsLeaveTheWholeWidthAndComeBack) {
    Program program;
    program.command(basicKeypad);
    program.command(hideButtons);
    program.command(lengths);
    EXPECT_TRUE(program.window().isChecked(lengths));
    EXPECT_EQ(program.placeOf(program.workArea()).left, 0);
    EXPECT_FALSE(IsWindowVisible(program.child(lengths)));
    EXPECT_FALSE(IsWindowVisible(program.child(basicKeypad)));
    program.command(hideButtons);
    EXPECT_TRUE(IsWindowVisible(program.child(lengths)));
    expectLaidOut(program, {basicKeypad, lengths});
}

TEST(MainWindow, RemembersItsPanelsInTheirOrder) {
    MemoryStorage storage;
    {
        Program program(storedPanels({lengths, 0x1234, basicKeypad, lengths, 0xA9999, leftCaption, angles}));
        expectLaidOut(program, {lengths, basicKeypad, angles});
        EXPECT_TRUE(program.window().isChecked(angles));
        program.command(lengths);
        program.command(lengths);
        program.close();
        storage = program.storage();
    }
    EXPECT_EQ(storage.values.at(L"Selected Panels"),
              storedPanels({basicKeypad, angles, lengths}).values.at(L"Selected Panels"));
    const Program again(storage);
    expectLaidOut(again, {basicKeypad, angles, lengths});
}

TEST(MainWindow, StandsWhereItStoodUnlessNoScreenShowsIt) {
    const RECT stood{70, 80, 770, 480};
    EXPECT_EQ(shown(placeOnScreen(Program(storedRectangle(70, 80, 770, 480)).handle())), shown(stood));
    const RECT half = placeOnScreen(Program().handle());
    RECT desk{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    EXPECT_EQ(half.right - half.left, (desk.right - desk.left) / 2);
    EXPECT_EQ(half.bottom - half.top, (desk.bottom - desk.top) / 2);
    for (const RECT& hostile : {RECT{-32000, -32000, -31840, -31972}, RECT{5000, 5000, 5700, 5400},
                                RECT{700, 400, 100, 100}, RECT{100, 100, 100, 100}, RECT{0, 0, 1 << 30, 1 << 30}}) {
        const Program program(storedRectangle(hostile.left, hostile.top, hostile.right, hostile.bottom));
        EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(half)) << shown(hostile);
    }
}

TEST(MainWindow, StoresEveryRectangleThatTheSystemReports) {
    Program program;
    for (const RECT& place : {RECT{10, 20, 700, 500}, RECT{200, 100, 800, 600}}) {
        MoveWindow(program.handle(), place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
        ASSERT_TRUE(program.settings().windowRect());
        EXPECT_EQ(*program.settings().windowRect(),
                  (ScreenRectangle{place.left, place.top, place.right, place.bottom}));
        EXPECT_EQ(program.storage().written.back(), L"Window Rect");
    }
}

TEST(MainWindow, MaximizedItFillsTheDeskAndCanBeRestored) {
    Program program;
    const RECT before = placeOnScreen(program.handle());
    RECT desk{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    // A window manager takes its time, and loses what comes while it is at work.
    const auto shows = [&](std::string_view label) {
        const auto current = [&] { return Component::of(program.buttonsOf(rightCaption).at(1))->label(); };
        for (int tries = 0; tries < 100 && current() != label; ++tries) {
            Sleep(50);
            Program::serveMessages();
        }
        Sleep(500);
        Program::serveMessages();
        return current() == label;
    };
    ShowWindow(program.handle(), SW_SHOW);
    ASSERT_TRUE(shows("M"));
    Program::click(program.buttonsOf(rightCaption).at(1));
    ASSERT_TRUE(shows("R"));
    RECT client = program.client();
    MapWindowPoints(program.handle(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    // One pixel of the frame may be in view; a window manager may shift it from one side to the other.
    RECT common{};
    IntersectRect(&common, &client, &desk);
    EXPECT_TRUE(EqualRect(&common, &client)) << shown(client);
    EXPECT_GE(client.right - client.left, desk.right - desk.left - 2) << shown(client);
    EXPECT_GE(client.bottom - client.top, desk.bottom - desk.top - 2) << shown(client);
    expectLaidOut(program, {});
    Program::click(program.buttonsOf(rightCaption).at(1));
    ASSERT_TRUE(shows("M"));
    EXPECT_EQ(shown(placeOnScreen(program.handle())), shown(before));
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
    EXPECT_EQ(place.left, 100);
    EXPECT_EQ(place.top, 100);
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

TEST(MainWindow, TheCaptionIsWhereNoControlLies) {
    Program program;
    program.command(basicKeypad);
    const auto areaAt = [&](LONG left, LONG top) {
        POINT place{left, top};
        ClientToScreen(program.handle(), &place);
        return SendMessageW(program.handle(), WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
    };
    const RECT left = program.placeOf(program.child(leftCaption));
    EXPECT_EQ(areaAt(left.right + 5, 5), HTCAPTION);
    EXPECT_EQ(areaAt(5, program.placeOf(program.child(basicKeypad)).bottom + 5), HTCAPTION);
    const RECT window = placeOnScreen(program.handle());
    EXPECT_EQ(SendMessageW(program.handle(), WM_NCHITTEST, 0, MAKELPARAM(window.right - 1, window.bottom - 1)),
              HTBOTTOMRIGHT);
}

TEST(MainWindow, GivesItsFocusToTheWorkArea) {
    Program program;
    EXPECT_EQ(GetFocus(), program.workArea());
    SetFocus(nullptr);
    SetFocus(program.handle());
    EXPECT_EQ(GetFocus(), program.workArea());
    program.command(basicKeypad);
    Program::click(program.buttonsOf(basicKeypad).front());
    EXPECT_EQ(GetFocus(), program.workArea());
    EXPECT_EQ(program.text(), L"7");
}

TEST(MainWindow, ClosingItEndsTheMessageLoop) {
    Program program;
    const HWND closing = program.buttonsOf(rightCaption).back();
    PostMessageW(closing, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageW(closing, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(runMessageLoop([] { FAIL() << "an exception escaped"; }), 0);
    EXPECT_EQ(program.handle(), nullptr);
}

// --- Commands -------------------------------------------------------------------------------------------------------

TEST(Commands, OptionsAreAMarkAndASetting) {
    struct Row {
        unsigned command;
        BooleanSetting setting;
    };
    const Row rows[] = {
        {0x142, BooleanSetting::ReadDefaultAtStartup},
        {0x143, BooleanSetting::SaveDefaultAtExit},
        {hideButtons, BooleanSetting::HideButtons},
    };
    Program program;
    for (const Row& row : rows) {
        for (const bool on : {true, false, true, false}) {
            program.command(row.command);
            EXPECT_EQ(program.window().isChecked(static_cast<std::uint16_t>(row.command)), on) << row.command;
            EXPECT_EQ(program.settings().boolean(row.setting), on) << row.command;
        }
    }
}

TEST(Commands, OfTheAnglesOneAtMostIsOn) {
    constexpr unsigned entries[] = {0x8031, 0x8032, 0x8033};
    const std::vector<std::pair<unsigned, AngleOption>> presses = {
        {0x8031, AngleOption::Degree}, {0x8032, AngleOption::Gradient}, {0x8032, AngleOption::None},
        {0x8033, AngleOption::Radian}, {0x8031, AngleOption::Degree},   {0x8031, AngleOption::None},
    };
    Program program;
    for (const auto& [pressed, option] : presses) {
        program.command(pressed);
        EXPECT_EQ(program.settings().angleOption(), option);
        for (const unsigned entry : entries) {
            EXPECT_EQ(program.window().isChecked(static_cast<std::uint16_t>(entry)),
                      entry == pressed && option != AngleOption::None);
        }
    }
}

TEST(Commands, TheSelectedFormatIsTheResults) {
    struct Row {
        unsigned command;
        const wchar_t* record;
    };
    const Row rows[] = {
        {0x512, L"20000.5*2 = 4.0001e+4\n\n4.0001e+4"},
        {0x515, L"20000.5*2 = 4,0001\n\n4,0001"},
        {0x516, L"20000.5*2 = 40001\n\n40001"},
        {0x511, L"20000.5*2 = 40,001\n\n40,001"},
    };
    Program program;
    for (const Row& row : rows) {
        program.command(row.command);
        program.setText(L"20000.5*2");
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_EQ(program.text(), row.record) << std::hex << row.command;
        for (unsigned entry = 0x511; entry <= 0x517; ++entry) {
            EXPECT_EQ(program.window().isChecked(static_cast<std::uint16_t>(entry)), entry == row.command);
        }
    }
}

TEST(Commands, ClearingCanBeUndone) {
    Program program;
    program.setText(L"2+3\n7");
    program.command(0x120);
    EXPECT_EQ(program.text(), L"");
    SendMessageW(program.workArea(), EM_UNDO, 0, 0);
    EXPECT_EQ(program.text(), L"2+3\n7");
}

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

}  // namespace
}  // namespace calquo
