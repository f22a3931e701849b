// What a save does with the file that has the name already, and what is left when any of its steps fails.
#include "workarea/known_files.h"

#include <gtest/gtest.h>

#include <set>

#include "support/fake_disk.h"
#include "workarea/disk_file.h"

namespace calquo {
namespace {

const std::wstring name = L"C:\\sheets\\a.rtf", kept = L"C:\\sheets\\a.rtf.bak", kept2 = L"C:\\sheets\\a.rtf.bak2";

/// Reads and saves texts as a run of the program does: a text is told from others by its revision alone.
struct ProgramRun {
    std::wstring save(TextRevision revision, const std::string& bytes, const std::wstring& file = name) {
        return files.save(file, revision, [&] { return bytes; });
    }
    void read(TextRevision revision, const std::wstring& file = name) {
        files.read(file, [&](std::string_view) { return revision; });
    }

    FakeDisk disk;
    KnownFiles files{disk};
};

TEST(KnownFiles, AFileIsSkippedReplacedOrKept) {
    struct Row {
        const char* what;
        std::function<void(ProgramRun&)> before;
        const char* left;  ///< After text 5, "new", has been saved.
        const char* backup;
    };
    const Row rows[] = {
        {"there is none", [](ProgramRun&) {}, "new", "(none)"},
        {"empty", [](ProgramRun& run) { run.disk.put(name, ""); }, "new", "(none)"},
        {"of somebody else", [](ProgramRun& run) { run.disk.put(name, "old"); }, "new", "old"},
        {"read, and the sheet was changed",
         [](ProgramRun& run) {
             run.disk.put(name, "old");
             run.read(4);
         },
         "new", "(none)"},
        {"read, and the sheet is the same",
         [](ProgramRun& run) {
             run.disk.put(name, "old");
             run.read(5);
         },
         "old", "(none)"},
        {"another file was read since",
         [](ProgramRun& run) {
             run.disk.put(name, "old");
             run.read(4);
             run.disk.put(L"C:\\b.rtf", "else");
             run.read(5, L"C:\\b.rtf");
         },
         "new", "(none)"},
        {"saved, in letters of another case",
         [](ProgramRun& run) {
             run.save(5, "mine", L"c:\\Sheets\\A.rtf");
             run.disk.files[name] = run.disk.files[L"c:\\Sheets\\A.rtf"];
         },
         "mine", "(none)"},
        {"saved, then changed in size",
         [](ProgramRun& run) {
             run.save(5, "mine");
             run.disk.files[name].bytes = "theirs";
         },
         "new", "theirs"},
        {"saved, then written again",
         [](ProgramRun& run) {
             run.save(5, "mine");
             run.disk.put(name, "mine");
         },
         "new", "mine"},
        {"saved, then changed in its bytes alone",
         [](ProgramRun& run) {
             run.save(5, "mine");
             run.disk.files[name].bytes = "MINE";
         },
         "new", "MINE"},
        {"saved, then removed",
         [](ProgramRun& run) {
             run.save(5, "mine");
             run.disk.files.erase(name);
         },
         "new", "(none)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        ProgramRun run;
        row.before(run);
        const bool isKept = std::string_view(row.backup) != "(none)";
        EXPECT_EQ(run.save(5, "new"), isKept ? kept : std::wstring());
        EXPECT_EQ(run.disk.bytes(name), row.left);
        EXPECT_EQ(run.disk.bytes(kept), row.backup);
        EXPECT_EQ(run.save(5, "never"), L"");
        EXPECT_EQ(run.disk.bytes(name), row.left);
    }
}

TEST(KnownFiles, AForeignFileTakesTheFirstNameThatNoForeignOneHas) {
    ProgramRun run;
    run.disk.put(name, "first");
    EXPECT_EQ(run.save(1, "mine"), kept);
    // The program's own is replaced, until somebody changes it or saves under its name.
    run.disk.put(name, "second");
    EXPECT_EQ(run.save(2, "mine"), kept);
    EXPECT_EQ(run.disk.bytes(kept), "second");
    run.disk.put(kept, "somebody's");
    run.disk.put(name, "third");
    EXPECT_EQ(run.save(3, "mine"), kept2);
    EXPECT_FALSE(run.files.hold(4));
    EXPECT_EQ(run.save(4, "my own", kept2), L"");
    EXPECT_TRUE(run.files.hold(4));
    run.disk.put(name, "fourth");
    EXPECT_EQ(run.save(5, "mine"), L"C:\\sheets\\a.rtf.bak3");
    EXPECT_EQ(run.disk.bytes(kept), "somebody's");
    EXPECT_EQ(run.disk.bytes(kept2), "my own");

    const std::wstring longName = L"C:\\" + std::wstring(longestPath - 6, L'x');
    run.disk.put(longName, "old");
    EXPECT_THROW(run.save(6, "mine", longName), FileFault);
    EXPECT_EQ(run.disk.bytes(longName), "old");
}

/// A save on which the call of a number fails, or that one and all further ones.
struct FailingSave {
    FileFailure failure;
    bool isForeign, halfWay, goesOn, hasBackup;

    /// Checks what is left; false when no call of that number was made.
    bool check(int first) const {
        ProgramRun run;
        if (hasBackup) {
            run.disk.put(name, "oldest");
            run.save(1, "mine");
        }
        run.disk.put(name, "old");
        if (!isForeign) {
            run.read(1);
        }
        run.disk.failsHalfWay = halfWay;
        bool failed = false;
        run.disk.failing = [&](int number, std::string_view) {
            const bool fails = number == first || (goesOn && number > first);
            failed = failed || fails;
            return fails ? std::optional(failure) : std::nullopt;
        };
        bool saved = true;
        std::wstring keptAs;
        try {
            keptAs = run.save(2, "new");
        } catch (const FileFault& fault) {
            saved = false;
            EXPECT_EQ(fault.failure, failure);
        }
        std::set<std::string> left;
        for (const auto& [path, file] : run.disk.files) {
            left.insert(file.bytes);
        }
        EXPECT_TRUE(!hasBackup || left.contains("oldest") || (saved && keptAs == kept));
        if (saved) {
            EXPECT_EQ(run.disk.bytes(name), "new");
            EXPECT_TRUE(!isForeign || run.disk.bytes(keptAs) == "old");
        } else if (run.disk.bytes(name) == "old") {
            EXPECT_TRUE(goesOn || run.disk.files.size() == (hasBackup ? 2 : 1));
            EXPECT_TRUE(!hasBackup || run.disk.bytes(kept) == "oldest");
        } else {
            // The system's own replacement has lost it, and then no name could be given.
            EXPECT_TRUE(halfWay && goesOn && left.contains("new") && left.contains("old") == isForeign);
        }
        return failed;
    }
};

TEST(KnownFiles, WhateverFailsNothingIsLost) {
    using enum FileFailure;
    for (const FileFailure failure : {DiskFull, AccessDenied, InUse, Unreachable, OutOfMemory, Other}) {
        for (unsigned options = 0; options < 16; ++options) {
            const FailingSave save{failure, (options & 1) != 0, (options & 2) != 0, (options & 4) != 0,
                                   (options & 8) != 0};
            for (int first = 0; save.check(first); ++first) {
                ASSERT_FALSE(HasFailure()) << "call " << first << ", options " << options;
            }
        }
    }
}

TEST(KnownFiles, AReadingThatFailsMidwayIsNoReading) {
    ProgramRun run;
    run.disk.put(name, "a text of several pieces");
    run.disk.failing = [](int number, std::string_view) {
        return number == 3 ? std::optional(FileFailure::Unreachable) : std::nullopt;
    };
    EXPECT_THROW(run.read(1), FileFault);
    EXPECT_EQ(run.save(1, "new"), kept);
    run.read(2, kept);
    EXPECT_EQ(readFile(run.disk, kept), "a text of several pieces");
}

TEST(DiskFile, WhatAnotherProgramHoldsIsTriedAgain) {
    struct Row {
        const char* call;
        int failures;
        FileFailure failure;
        int pauses;
        bool saves;
    };
    const Row rows[] = {
        {"replace", 2, FileFailure::InUse, 2, true},  // saved at the third try
        {"replace", 2, FileFailure::AccessDenied, 2, true}, {"replace", 9, FileFailure::InUse, 4, true},  // by renaming
        {"replace", 9, FileFailure::Other, 0, true},  // a file system without it
        {"rename", 2, FileFailure::InUse, 2, true},         {"rename", 9, FileFailure::InUse, 4, false},
        {"rename", 9, FileFailure::DiskFull, 0, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.call << " " << row.failures);
        const bool isNew = std::string_view(row.call) == "rename";
        FakeDisk disk;
        if (!isNew) {
            disk.put(name, "old");
        }
        int left = row.failures;
        disk.failing = [&](int, std::string_view call) {
            return call == row.call && left-- > 0 ? std::optional(row.failure) : std::nullopt;
        };
        if (row.saves) {
            replaceFile(disk, name, "new");
        } else {
            EXPECT_THROW(replaceFile(disk, name, "new"), FileFault);
        }
        EXPECT_EQ(disk.bytes(name), row.saves ? "new" : isNew ? "(none)" : "old");
        EXPECT_EQ(disk.files.size(), row.saves || !isNew ? 1u : 0u);
        EXPECT_EQ(disk.pauses, row.pauses);
    }
}

TEST(DiskFile, TemporaryNamesAreNewAndFitThePath) {
    FakeDisk disk;
    const std::wstring taken = L"C:\\sheets\\" + temporaryName(0, 12);
    disk.put(taken, "of another program");
    replaceFile(disk, name, "new");
    EXPECT_EQ(disk.bytes(taken), "of another program");
    EXPECT_EQ(disk.bytes(name), "new");
    EXPECT_EQ(disk.files.size(), 2u);
    for (const std::size_t room : {1u, 5u, 10u, 11u, 100u}) {
        std::set<std::wstring> names;
        for (std::uint32_t random = 0; random < 20; ++random) {
            names.insert(temporaryName(random, room));
            EXPECT_LE(names.begin()->size(), room);
        }
        EXPECT_EQ(names.size(), 20u) << room;
    }
}

}  // namespace
}  // namespace calquo
