// All panels at once, more than any screen is high: each of their buttons can be reached.
#include <gtest/gtest.h>

#include "panels/catalogue.h"
#include "program.h"
#include "widgets/toolkit.h"

namespace calquo {
namespace {

constexpr unsigned leftCaption = 0x9011, hideButtons = 0x8010;
constexpr int manyNotches = 120 * 250;  // as many notches as a message holds

class PanelColumn : public testing::Test {
protected:
    PanelColumn() {
        for (const PanelEntry& entry : panelCatalogue()) {
            program.command(entry.identifier);
        }
        do {
            column = FindWindowExW(program.handle(), column, L"CalquoPanel", nullptr);
        } while (column != nullptr && GetDlgCtrlID(column) != 0);
        bar = FindWindowExW(column, nullptr, L"CalquoBar", nullptr);
    }

    static unsigned identifier(std::size_t place) { return panelCatalogue()[place].identifier; }
    static std::size_t count() { return panelCatalogue().size(); }

    bool isInView(HWND window) const {
        const RECT place = program.placeOf(window), view = program.placeOf(column);
        return place.top >= view.top && place.bottom <= view.bottom && IsWindowVisible(window) != 0;
    }

    /// Turns the wheel over the middle of a window; the system tells the work area, which has the focus.
    void turn(int delta, HWND over) {
        RECT place{};
        GetWindowRect(over, &place);
        SendMessageW(program.workArea(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta),
                     MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2));
        Program::serveMessages();
    }

    void mouse(UINT message, LONG top) {
        SendMessageW(bar, message, MK_LBUTTON, MAKELPARAM(1, top));
        Program::serveMessages();
    }

    LONG topOf(unsigned panel) const { return program.placeOf(program.child(panel)).top; }

    Program program;
    HWND column = nullptr, bar = nullptr;
};

TEST_F(PanelColumn, TheWheelOverItBringsEveryButtonIntoView) {
    ASSERT_TRUE(IsWindowVisible(bar));
    EXPECT_TRUE(isInView(program.buttonsOf(identifier(count() - 1)).back())) << "the last one opened";
    turn(manyNotches, column);
    const LONG captionBottom = program.placeOf(program.child(leftCaption)).bottom;
    EXPECT_EQ(topOf(identifier(0)), captionBottom);
    turn(-120, program.workArea());
    EXPECT_EQ(topOf(identifier(0)), captionBottom) << "over the work area";
    RECT usable{}, view{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &usable, 0);
    GetWindowRect(column, &view);
    // Some window managers shift a window that is as high as the screen by the width of its frame.
    EXPECT_LT(view.bottom, usable.bottom + buttonSize() / 2) << "the window has grown over the edge of the screen";
    for (const PanelEntry& entry : panelCatalogue()) {
        const std::vector<HWND> buttons = program.buttonsOf(entry.identifier);
        EXPECT_FALSE(buttons.empty());
        for (const HWND button : buttons) {
            for (int turns = 0; turns < 10 && !isInView(button); ++turns) {
                turn(-120, column);
            }
            ASSERT_TRUE(isInView(button)) << entry.menuLabel;
        }
    }
    turn(-manyNotches, column);
    EXPECT_EQ(program.placeOf(program.child(identifier(count() - 1))).bottom, program.placeOf(column).bottom);
    program.setText(L"");
    Program::click(program.buttonsOf(identifier(count() - 1)).back());
    EXPECT_NE(program.text(), L"");
    EXPECT_EQ(GetFocus(), program.workArea());
}

TEST_F(PanelColumn, TheBarIsOverItsRightMarginAndScrollsByTheMouse) {
    const RECT view = program.placeOf(column), place = program.placeOf(bar);
    EXPECT_TRUE(place.right == view.right && place.top == view.top && place.bottom == view.bottom);
    EXPECT_EQ(place.right - place.left, buttonSize() / 4);
    EXPECT_EQ(view.bottom, program.client().bottom);
    EXPECT_EQ(SendMessageW(bar, WM_NCHITTEST, 0, 0), HTCLIENT);

    const LONG height = place.bottom - place.top, end = topOf(identifier(0));
    mouse(WM_LBUTTONDOWN, 1);  // above the thumb
    mouse(WM_LBUTTONUP, 1);
    EXPECT_EQ(topOf(identifier(0)) - end, height - buttonSize()) << "a page";
    turn(manyNotches, column);
    const LONG beginning = topOf(identifier(0));
    mouse(WM_LBUTTONDOWN, 2);
    EXPECT_EQ(GetCapture(), bar);
    mouse(WM_MOUSEMOVE, 12);
    EXPECT_LT(topOf(identifier(0)), beginning);
    mouse(WM_MOUSEMOVE, height);
    EXPECT_EQ(topOf(identifier(0)), end);
    mouse(WM_LBUTTONUP, height);
    EXPECT_NE(GetCapture(), bar);
    mouse(WM_MOUSEMOVE, 2);
    EXPECT_EQ(topOf(identifier(0)), end) << "let go of";
    EXPECT_EQ(GetFocus(), program.workArea());
}

TEST_F(PanelColumn, WhatIsSeenIsTheSameInEveryScale) {
    turn(manyNotches, column);
    RECT place{};
    GetWindowRect(program.handle(), &place);
    const unsigned seen = identifier(count() / 2);
    while (topOf(seen) > program.placeOf(column).top) {
        turn(-120, column);
    }
    const LONG before = topOf(seen) - program.placeOf(column).top;
    for (const int dots : {192, 144, 240, 96}) {
        RECT suggested{place.left, place.top, place.right, place.bottom};
        SendMessageW(program.handle(), WM_DPICHANGED, MAKEWPARAM(dots, dots), reinterpret_cast<LPARAM>(&suggested));
        Program::serveMessages();
        EXPECT_NEAR(topOf(seen) - program.placeOf(column).top, before * dots / 96, 20 * dots / 96) << dots;
        const RECT view = program.placeOf(column), strip = program.placeOf(bar);
        EXPECT_TRUE(strip.right == view.right && strip.bottom == view.bottom && IsWindowVisible(bar)) << dots;
        EXPECT_EQ(strip.right - strip.left, buttonSize() / 4) << dots;
    }
    EXPECT_NEAR(topOf(seen) - program.placeOf(column).top, before, 2) << "back where it was";
}

TEST_F(PanelColumn, TheBarVanishesWhenAllPanelsAreSeen) {
    program.command(hideButtons);
    EXPECT_FALSE(IsWindowVisible(column));
    program.command(hideButtons);
    EXPECT_TRUE(IsWindowVisible(bar));
    for (std::size_t place = 1; place < count(); ++place) {
        program.command(identifier(place));
    }
    EXPECT_FALSE(IsWindowVisible(bar));
    EXPECT_EQ(topOf(identifier(0)), program.placeOf(program.child(leftCaption)).bottom);
    turn(-manyNotches, column);
    EXPECT_TRUE(isInView(program.child(identifier(0))));
}

}  // namespace
}  // namespace calquo
