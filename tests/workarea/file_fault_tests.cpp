// The reasons that users are told.
#include "workarea/file_fault.h"

#include <gtest/gtest.h>

#include <set>

#include "workarea/disk_file.h"

namespace calquo {
namespace {

TEST(FileFault, EveryFailureHasASentenceOfItsOwn) {
    std::set<std::wstring> sentences;
    for (int failure = 0; failure <= static_cast<int>(FileFailure::Other); ++failure) {
        const std::wstring sentence = reasonOf({static_cast<FileFailure>(failure), {}});
        EXPECT_TRUE(sentence.ends_with(L'.')) << failure;
        EXPECT_TRUE(sentences.insert(sentence).second) << failure;
    }
    const std::wstring text = L"The request could not be performed because of an I/O device error.";
    EXPECT_EQ(reasonOf({FileFailure::Other, text}), text);
    EXPECT_EQ(reasonOf({FileFailure::DiskFull, text}), L"The disk is full.");
    const std::wstring limit = std::to_wstring(largestFile / (std::size_t{1} << 20)) + L" megabytes";
    EXPECT_NE(reasonOf({FileFailure::TooLarge, {}}).find(limit), std::wstring::npos);
}

}  // namespace
}  // namespace calquo
