// The reasons that users are told.
#include "workarea/file_fault.h"

#include <gtest/gtest.h>

#include <set>

#include "workarea/disk_file.h"

namespace calquo {
namespace {

TEST(FileFault, SystemErrorsHaveReasons) {
    struct Row {
        std::uint32_t number;
        FileFailure failure;
    };
    const Row rows[] = {
        {2, FileFailure::Missing},     {3, FileFailure::FolderMissing},  {5, FileFailure::AccessDenied},
        {32, FileFailure::InUse},      {33, FileFailure::InUse},         {39, FileFailure::DiskFull},
        {112, FileFailure::DiskFull},  {123, FileFailure::InvalidName},  {19, FileFailure::ReadOnly},
        {8, FileFailure::OutOfMemory}, {21, FileFailure::NotReady},      {0, FileFailure::Other},
        {1117, FileFailure::Other},    {0xFFFFFFFF, FileFailure::Other},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(failureOf(row.number), row.failure) << row.number;
    }
}

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
}

TEST(FileFault, TheLimitInTheSentenceIsTheLimit) {
    const std::wstring megabytes = std::to_wstring(largestFile / (std::size_t{1} << 20)) + L" megabytes";
    EXPECT_NE(reasonOf({FileFailure::TooLarge, {}}).find(megabytes), std::wstring::npos);
}

}  // namespace
}  // namespace calquo
