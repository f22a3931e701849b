// The file that the program is started with.
#include "shell/command_line.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

TEST(CommandLine, NamesAFileByItsFirstWord) {
    struct Row {
        const wchar_t* line;
        const wchar_t* file;
    };
    for (const Row& row : {Row{L"", L""}, Row{L"Calquo.exe", L""}, Row{L"\"C:\\My Programs\\Calquo.exe\"", L""},
                           Row{L"\"C:\\My Programs\\Calquo.exe\"  \"C:\\my sheet.rtf\" other", L"C:\\my sheet.rtf"},
                           Row{L"Calquo.exe\ta.txt b.txt", L"a.txt"},
                           Row{L"Calquo.exe C:\\\"my sheets\"\\a.rtf", L"C:\\my sheets\\a.rtf"},
                           Row{L"Calquo.exe \"cut off", L"cut off"}, Row{L"Calquo.exe \"\"", L""}}) {
        EXPECT_EQ(fileOnCommandLine(row.line), row.file) << testing::PrintToString(std::wstring(row.line));
    }
}

}  // namespace
}  // namespace calquo
