// The window about the program.
#include "dialogs/about.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <set>
#include <string>

#include "dialog_keys.h"
#include "program.h"
#include "resources.h"
#include "values/program.h"
#include "widgets/bitmap_image.h"

namespace calquo {
namespace {

constexpr unsigned showAbout = 0xA60;

HWND about() { return FindWindowW(nullptr, L"About Calquo 2"); }

BOOL CALLBACK noteChild(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> children() {
    std::vector<HWND> found;
    EnumChildWindows(about(), noteChild, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND childNamed(const std::string& text) {
    for (const HWND child : children()) {
        std::array<char, 200> shown{};
        GetWindowTextA(child, shown.data(), static_cast<int>(shown.size()));
        if (shown.data() == text) {
            return child;
        }
    }
    return nullptr;
}

TEST(About, ShowsAPictureAndNamesTheProgramItsVersionAndItsSite) {
    Program program;
    program.command(showAbout);
    ASSERT_NE(about(), nullptr);
    EXPECT_EQ(GetWindow(about(), GW_OWNER), program.handle());
    for (const std::string& text : {std::string(programName), std::string("Version ") + programVersion,
                                    std::string(makersSite), std::string("Close")}) {
        EXPECT_NE(childNamed(text), nullptr) << text;
    }
    EXPECT_EQ(settledFocus(), childNamed("Close"));
    RECT area{};
    GetWindowRect(about(), &area);
    HWND image = nullptr;
    for (const HWND child : children()) {
        RECT place{}, common{};
        GetWindowRect(child, &place);
        IntersectRect(&common, &place, &area);
        EXPECT_TRUE(EqualRect(&common, &place) && !IsRectEmpty(&place) && IsWindowVisible(child));
        image = dynamic_cast<const BitMapImage*>(Component::of(child)) != nullptr ? child : image;
    }
    ASSERT_NE(image, nullptr);
    RedrawWindow(about(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GetClientRect(image, &area);
    const HDC context = GetDC(image);
    std::set<COLORREF> colors;
    for (int step = 0; step < area.right; ++step) {
        colors.insert(GetPixel(context, step, area.bottom / 4));
        colors.insert(GetPixel(context, area.right / 2, step));
    }
    // Outside the picture's shape lies the ground of the window.
    EXPECT_EQ(GetPixel(context, 0, 0), GetSysColor(COLOR_3DFACE));
    ReleaseDC(image, context);
    EXPECT_GT(colors.size(), 5u);
}

TEST(About, IsOneWindowThatClosesInEveryWayAndLeavesNothingBehind) {
    const std::function<void()> ways[] = {
        [] { press(VK_RETURN); },
        [] {
            press(VK_TAB);
            EXPECT_EQ(settledFocus(), childNamed("Close"));
            press(VK_SPACE);
            PostMessageW(GetFocus(), WM_KEYUP, VK_SPACE, 1);
            Program::serveMessages();
        },
        [] { press(VK_ESCAPE); },
        [] { SendMessageW(childNamed("Close"), BM_CLICK, 0, 0); },
        [] { SendMessageW(about(), WM_CLOSE, 0, 0); },
    };
    Program program;
    Resources before;
    for (int round = 0; round <= 12; ++round) {
        program.command(showAbout);
        const HWND first = about();
        SetActiveWindow(program.handle());
        EXPECT_EQ(settledFocus(), childNamed("Close")) << "the focus does not come back";
        program.command(showAbout);
        settle();
        EXPECT_EQ(about(), first);
        EXPECT_EQ(FindWindowExW(nullptr, first, nullptr, L"About Calquo 2"), nullptr);
        ways[round % std::size(ways)]();
        EXPECT_EQ(about(), nullptr);
        EXPECT_EQ(settledFocus(), program.workArea());
        before = round == 0 ? heldResources() : before;
    }
    EXPECT_EQ(heldResources().drawingObjects, before.drawingObjects);
    EXPECT_EQ(heldResources().windows, before.windows);
    EXPECT_EQ(heldResources().allocations, before.allocations);
}

}  // namespace
}  // namespace calquo
