// The program's window: the work area fills it, has its focus, and closing it ends the program.
#include "shell/main_window.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "shell/message_loop.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

HWND workAreaOf(const MainWindow& window) { return FindWindowExW(window.handle(), nullptr, L"RichEdit20A", nullptr); }

TEST(MainWindow, IsFoundByItsTitleAsItsClass) {
    const MainWindow window;
    std::array<wchar_t, 100> title{};
    GetWindowTextW(window.handle(), title.data(), static_cast<int>(title.size()));
    EXPECT_EQ(std::wstring(title.data()).rfind(L"Calquo 2.0 - ", 0), 0u) << title.data();
    EXPECT_EQ(FindWindowW(title.data(), title.data()), window.handle());
}

TEST(MainWindow, TheWorkAreaFillsItAtEverySize) {
    MainWindow window;
    window.show(SW_SHOW);
    for (const SIZE size : {SIZE{700, 500}, SIZE{300, 200}, SIZE{900, 600}}) {
        SetWindowPos(window.handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        RECT client{}, control{};
        GetClientRect(window.handle(), &client);
        GetWindowRect(workAreaOf(window), &control);
        MapWindowPoints(nullptr, window.handle(), reinterpret_cast<POINT*>(&control), 2);
        EXPECT_GT(client.bottom, 0);
        EXPECT_TRUE(EqualRect(&client, &control)) << size.cx << " by " << size.cy;
    }
}

TEST(MainWindow, GivesItsFocusToTheWorkArea) {
    MainWindow window;
    window.show(SW_SHOW);
    EXPECT_EQ(GetFocus(), workAreaOf(window));
    SetFocus(nullptr);
    SetFocus(window.handle());
    EXPECT_EQ(GetFocus(), workAreaOf(window));
}

TEST(MainWindow, ClosingItEndsTheMessageLoop) {
    MainWindow window;
    window.show(SW_SHOW);
    PostMessageW(window.handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(runMessageLoop([] { FAIL() << "an exception escaped"; }), 0);
    EXPECT_EQ(window.handle(), nullptr);
}

}  // namespace
}  // namespace calquo
