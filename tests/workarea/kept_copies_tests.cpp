// Which copies of the work area are found and kept, and how often one is written.
#include "workarea/kept_copies.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

TEST(KeptCopies, AreFoundAmongOtherFilesNewestFirst) {
    const std::wstring name = copyName({2026, 3, 9, 7, 5, 0, 12, 0x7C4});
    EXPECT_EQ(name, L"2026-03-09 07-05-00-012 000007C4.rtf");
    EXPECT_EQ(savedCopyName(name), L"2026-03-09 07-05-00-012 000007C4 saved.rtf");
    EXPECT_EQ(savedCopyName(savedCopyName(name)), savedCopyName(name));
    EXPECT_FALSE(isSavedCopy(name));
    EXPECT_TRUE(isSavedCopy(savedCopyName(name)));
    const std::wstring older = copyName({2025, 12, 31, 23, 59, 59, 999, 0xFFFFFFFF});
    const std::wstring newer = savedCopyName(copyName({2026, 3, 9, 7, 5, 0, 13, 1}));
    EXPECT_EQ(copiesNewestFirst({L".", L"..", older, newer, L"WorkArea.rtf", name, name + L".bak", name + L".rtf",
                                 L"2026-03-09 07-05-00-012 000007G4.rtf", L"2026-03-09.rtf"}),
              (std::vector{newer, name, older}));
}

TEST(KeptCopies, WritingTakesATwentiethOfTheTimeAtMost) {
    using std::chrono::milliseconds;
    const WritingPace::Time start{};
    WritingPace pace;
    EXPECT_TRUE(pace.allows(start));
    pace.wrote(start, start + milliseconds(10));
    EXPECT_FALSE(pace.allows(start + milliseconds(209)));
    EXPECT_TRUE(pace.allows(start + milliseconds(210)));
}

}  // namespace
}  // namespace calquo
