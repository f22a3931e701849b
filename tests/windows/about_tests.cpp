// The window about the program.
#include "shell/about.h"

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

TEST(About, NamesTheProgramItsVersionAndItsSite) {
    Program program;
    program.command(showAbout);
    ASSERT_NE(about(), nullptr);
    EXPECT_EQ(GetWindow(about(), GW_OWNER), program.handle());
    for (const std::string& text : {std::string(programName), std::string("Version ") + programVersion,
                                    std::string(makersSite), std::string("Close")}) {
        const HWND child = childNamed(text);
        EXPECT_TRUE(child != nullptr && IsWindowVisible(child)) << text;
    }
    EXPECT_EQ(settledFocus(), childNamed("Close"));
    RECT area{};
    GetWindowRect(about(), &area);
    for (const HWND child : children()) {
        RECT place{}, common{};
        GetWindowRect(child, &place);
        IntersectRect(&common, &place, &area);
        EXPECT_TRUE(EqualRect(&common, &place));
        EXPECT_FALSE(IsRectEmpty(&place));
    }
}

TEST(About, ShowsAPicture) {
    Program program;
    program.command(showAbout);
    const auto all = children();
    const auto image = std::find_if(all.begin(), all.end(), [](HWND child) {
        return dynamic_cast<const BitMapImage*>(Component::of(child)) != nullptr;
    });
    ASSERT_NE(image, all.end());
    RedrawWindow(about(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT area{};
    GetClientRect(*image, &area);
    const HDC context = GetDC(*image);
    std::set<COLORREF> colors;
    for (int step = 0; step < area.right; ++step) {
        colors.insert(GetPixel(context, step, area.bottom / 4));
        colors.insert(GetPixel(context, area.right / 2, step));
    }
    // Outside the picture's shape lies the ground of the window.
    EXPECT_EQ(GetPixel(context, 0, 0), GetSysColor(COLOR_3DFACE));
    ReleaseDC(*image, context);
    EXPECT_GT(colors.size(), 5u);
}

TEST(About, IsOneWindowThatClosesInEveryWay) {
    const std::function<void()> ways[] = {
        [] { press(VK_RETURN); },
        [] { press(VK_ESCAPE); },
        [] { SendMessageW(childNamed("Close"), BM_CLICK, 0, 0); },
        [] { SendMessageW(about(), WM_CLOSE, 0, 0); },
    };
    Program program;
    for (const auto& close : ways) {
        program.command(showAbout);
        const HWND first = about();
        SetActiveWindow(program.handle());
        EXPECT_EQ(settledFocus(), childNamed("Close")) << "the focus does not come back";
        program.command(showAbout);
        settle();
        EXPECT_EQ(about(), first);
        EXPECT_EQ(FindWindowExW(nullptr, first, nullptr, L"About Calquo 2"), nullptr);
        close();
        EXPECT_EQ(about(), nullptr);
        EXPECT_EQ(settledFocus(), program.workArea());
    }
}

TEST(About, LeavesNothingBehind) {
    Program program;
    const auto use = [&] {
        program.command(showAbout);
        settle();
        RedrawWindow(about(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        press(VK_ESCAPE);
    };
    use();
    const Resources before = heldResources();
    for (int round = 0; round < 20; ++round) {
        use();
    }
    const Resources after = heldResources();
    EXPECT_EQ(after.drawingObjects, before.drawingObjects);
    EXPECT_EQ(after.windows, before.windows);
}

}  // namespace
}  // namespace calquo
