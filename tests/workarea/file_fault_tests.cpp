// The reasons that users are told.
#include "workarea/file_fault.h"

#include <gtest/gtest.h>

#include <set>

#include "workarea/disk_file.h"

namespace calquo {
namespace {

TEST(FileFault, EveryFailureHasASentenceOfItsOwnAndAdvice) {
    std::set<std::wstring> sentences;
    for (int failure = 0; failure <= static_cast<int>(FileFailure::Other); ++failure) {
        const FileFault fault{static_cast<FileFailure>(failure), {}};
        EXPECT_TRUE(reasonOf(fault).ends_with(L'.') && adviceOf(fault).ends_with(L'.')) << failure;
        EXPECT_TRUE(sentences.insert(reasonOf(fault)).second) << failure;
    }
    const std::wstring text = L"The request could not be performed because of an I/O device error.";
    EXPECT_EQ(reasonOf({FileFailure::Other, text}), text);
    EXPECT_EQ(reasonOf({FileFailure::DiskFull, text}), L"The disk is full.");
    const std::wstring limit = std::to_wstring(largestFile / (std::size_t{1} << 20)) + L" megabytes";
    EXPECT_NE(reasonOf({FileFailure::TooLarge, {}}).find(limit), std::wstring::npos);
}

TEST(FileFault, WhatTheSystemSaysIsReadWithThePath) {
    struct Row {
        std::uint32_t error;
        std::size_t pathLength;
        bool driveIsThere;
        FileFailure failure;
    };
    using enum FileFailure;
    for (const Row& row :
         {Row{2, 20, true, Missing}, Row{3, 20, true, FolderMissing}, Row{3, 20, false, Unreachable},
          Row{2, 20, false, Unreachable}, Row{3, 260, true, PathTooLong}, Row{123, 300, true, PathTooLong},
          Row{123, 259, true, InvalidName}, Row{206, 20, true, PathTooLong}, Row{53, 300, true, Unreachable},
          Row{5, 300, false, AccessDenied}, Row{1175, 20, true, InUse}, Row{4711, 300, true, Other}}) {
        EXPECT_EQ(failureOf(row.error, row.pathLength, row.driveIsThere), row.failure)
            << row.error << ", " << row.pathLength;
    }
}

}  // namespace
}  // namespace calquo
