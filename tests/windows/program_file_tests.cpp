// What the program file holds beside its code.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "values/program.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The picture of an icon, blue first, with the transparency of each point.
std::vector<std::uint32_t> pictureOf(HICON icon, int size) {
    ICONINFO information{};
    std::vector<std::uint32_t> points;
    if (GetIconInfo(icon, &information) == 0) {
        return points;
    }
    BITMAP bitmap{};
    GetObjectW(information.hbmColor, sizeof bitmap, &bitmap);
    EXPECT_EQ(bitmap.bmWidth, size);
    EXPECT_EQ(bitmap.bmHeight, size);
    points.resize(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, information.hbmColor, 0, static_cast<UINT>(size), points.data(), &format, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    DeleteObject(information.hbmMask);
    DeleteObject(information.hbmColor);
    return points;
}

TEST(ProgramFile, HasAnIconForEachSizeOfTheSystem) {
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 256}) {
        const auto icon = static_cast<HICON>(
            LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(101), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
        ASSERT_NE(icon, nullptr) << size;
        const std::vector<std::uint32_t> points = pictureOf(icon, size);
        ASSERT_FALSE(points.empty()) << size;
        // A corner lets the background through; between the bars of the equals sign the key is opaque and orange.
        EXPECT_EQ(points.front() >> 24, 0U) << size;
        const auto key = points[static_cast<std::size_t>(size) * static_cast<std::size_t>(size * 5 / 8) +
                                static_cast<std::size_t>(size / 2)];
        EXPECT_EQ(key >> 24, 255U) << size;
        EXPECT_GT(key >> 16 & 255, 4 * (key & 255)) << size;
        DestroyIcon(icon);
    }
}

std::wstring wide(const char* text) { return {text, text + std::char_traits<char>::length(text)}; }

TEST(ProgramFile, TellsWhatItIs) {
    wchar_t path[MAX_PATH];
    ASSERT_NE(GetModuleFileNameW(nullptr, path, MAX_PATH), 0U);
    std::vector<std::byte> information(GetFileVersionInfoSizeW(path, nullptr));
    ASSERT_NE(GetFileVersionInfoW(path, 0, static_cast<DWORD>(information.size()), information.data()), 0);
    const auto tells = [&](const wchar_t* name) {
        void* text = nullptr;
        UINT length = 0;
        const std::wstring block = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        EXPECT_NE(VerQueryValueW(information.data(), block.c_str(), &text, &length), 0) << block;
        return std::wstring(static_cast<const wchar_t*>(text));
    };
    EXPECT_EQ(tells(L"ProductName"), wide(programName));
    EXPECT_EQ(tells(L"CompanyName"), wide(makersSite));
    EXPECT_EQ(tells(L"FileVersion"), wide(programVersion));
    void* fixed = nullptr;
    UINT length = 0;
    ASSERT_NE(VerQueryValueW(information.data(), L"\\", &fixed, &length), 0);
    const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(fixed);
    EXPECT_EQ(wide(programVersion), std::to_wstring(HIWORD(numbers.dwFileVersionMS)) + L'.' +
                                        std::to_wstring(LOWORD(numbers.dwFileVersionMS)) + L'.' +
                                        std::to_wstring(HIWORD(numbers.dwFileVersionLS)));
}

}  // namespace
}  // namespace calquo
