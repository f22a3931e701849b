// The help in the system's own window.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "program.h"
#include "shell/help.h"

namespace calquo {
namespace {

constexpr unsigned helpCommand = 0xA20;

/// The help's window, null when there is none within ten seconds.
HWND helpWindow() {
    constexpr int tries = 200, pause = 50;
    for (int i = 0; i < tries; ++i) {
        if (const HWND window = FindWindowW(L"HH Parent", nullptr)) {
            return window;
        }
        Program::serveMessages();
        Sleep(pause);
    }
    return nullptr;
}

TEST(Help, OpensTheFileBesideTheProgramInAWindowThatBelongsToTheMainOne) {
    ASSERT_NE(GetFileAttributesW(helpFile().c_str()), INVALID_FILE_ATTRIBUTES);
    Program program;
    program.command(helpCommand);
    const HWND help = helpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(GetWindow(help, GW_OWNER), program.handle());
    // The title stands in the file.
    std::array<wchar_t, 100> title{};
    GetWindowTextW(help, title.data(), static_cast<int>(title.size()));
    EXPECT_EQ(std::wstring(title.data()), L"Calquo Help");

    program.command(helpCommand);
    EXPECT_EQ(FindWindowExW(nullptr, help, L"HH Parent", nullptr), nullptr) << "a second window";
    program.close();
    EXPECT_EQ(IsWindow(help), FALSE);
}

}  // namespace
}  // namespace calquo
