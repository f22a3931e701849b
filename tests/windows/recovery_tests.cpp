// What is kept of the work area in the program's own folder, and how it comes back.
#include "workarea/recovery.h"

#include <gtest/gtest.h>

#include "file_folder.h"
#include "program.h"
#include "shell/file_messages.h"
#include "support/allocations.h"
#include "work_area_fixture.h"

namespace calquo {
namespace {

constexpr unsigned clear = 0x120, bringBack = 0x121, readDefault = 0x140, saveDefault = 0x141, saveAgain = 0x162;
constexpr std::uint32_t saveAtExit = 0x20;

/// A run of the program that keeps its work area in the folder "Kept" of a test's own.
struct Execution {
    explicit Execution(const FileFolder& folder, std::uint32_t flags = 0)
        : program(settingsFor(folder, flags),
                  {.showBox = {},
                   .chooseFile =
                       [this](WindowHandle, const FileRequest&) {
                           ++filesAskedFor;
                           return FileChoice{};
                       },
                   .showHint = [this](const std::wstring& text) { hints.push_back(text); }},
                  {{}, folder.path(L"Kept\\Sheets")}) {}

    static MemoryStorage settingsFor(const FileFolder& folder, std::uint32_t flags) {
        MemoryStorage storage;
        storage.values[L"Flags"] = flags;
        storage.values[L"Default File"] = folder.path(L"d.txt");
        return storage;
    }

    void evaluate(std::wstring_view line) {
        for (const wchar_t unit : line) {
            SendMessageW(program.workArea(), WM_CHAR, unit, 1);
        }
        SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
    }

    std::vector<std::wstring> hints;
    int filesAskedFor = 0;
    Program program;
};

/// The copies, newest first.
std::vector<std::wstring> copiesIn(const FileFolder& folder) {
    std::vector<std::wstring> names = folder.namesIn(L"Kept\\Sheets");
    const std::vector<std::wstring> copies = copiesNewestFirst(names);
    EXPECT_EQ(copies.size(), names.size());
    return copies;
}

TEST(Recovery, WhatRunsHaveLeftComesBackOneAfterTheOther) {
    const FileFolder folder;
    for (const wchar_t* line : {L"1+1", L"2+2", L"3+3", L"4+4", L"5+5", L"6+6"}) {
        Execution run(folder);
        run.evaluate(line);
        run.program.close();
    }
    EXPECT_EQ(copiesIn(folder).size(), mostCopies);
    folder.put(L"Kept\\Sheets\\~abcdef.tmp", "of a killed run");
    Execution run(folder);
    EXPECT_EQ(run.hints, std::vector<std::wstring>{unsavedCopyHint});
    EXPECT_EQ(run.program.text(), L"");
    run.evaluate(L"7+7");
    EXPECT_EQ(copiesIn(folder).size(), mostCopies);
    // A run that goes on in another session keeps its own.
    Execution other(folder);
    other.evaluate(L"8+8");
    EXPECT_EQ(copiesIn(folder).size(), mostCopies + 1);
    for (const wchar_t* text : {L"6+6 = 12\n\n12", L"5+5 = 10\n\n10", L"4+4 = 8\n\n8", L"3+3 = 6\n\n6"}) {
        run.program.command(bringBack);
        EXPECT_EQ(run.program.text(), text);
    }
    SendMessageW(run.program.workArea(), EM_UNDO, 0, 0);
    EXPECT_EQ(run.program.text(), L"4+4 = 8\n\n8");
    EXPECT_EQ(run.hints.size(), 1u);
    run.program.command(bringBack);
    EXPECT_EQ(run.hints.back(), noCopyHint);
    EXPECT_EQ(run.program.text(), L"4+4 = 8\n\n8");
    // What this run had before the first of them.
    run.program.command(bringBack);
    EXPECT_EQ(run.program.text(), L"7+7 = 14\n\n14");
}

TEST(Recovery, WhatIsBroughtBackIsOfNoFile) {
    const FileFolder folder;
    Execution(folder).evaluate(L"2+3");
    Execution run(folder);
    run.evaluate(L"7*8");
    run.program.command(saveDefault);
    run.program.command(bringBack);
    run.program.command(saveAgain);
    EXPECT_EQ(run.filesAskedFor, 1);
    EXPECT_EQ(folder.bytes(L"d.txt"), "7*8 = 56\r\n\r\n56");
}

TEST(Recovery, AFileThatWasKeptAtTheEndIsToldOfOnce) {
    const FileFolder folder;
    folder.put(L"d.txt", "foreign");
    {
        Execution run(folder, saveAtExit);
        run.program.setText(L"2+3");
        run.program.close();
    }
    EXPECT_EQ(Execution(folder).hints, std::vector<std::wstring>{keptAtExitHint(folder.path(L"d.txt.bak"))});
    EXPECT_TRUE(Execution(folder).hints.empty());
}

TEST(Recovery, MemoryThatRunsOutIsNoReasonToStop) {
    const FileFolder folder;
    WorkAreaFixture fixture;
    Recovery recovery(
        fixture.workArea(), [] { return false; }, folder.path(L"Kept\\Sheets"));
    int calls = 0;
    for (bool failed = true; failed; ++calls) {
        fixture.type("+");
        const FailingAllocation allocation(calls);
        EXPECT_NO_THROW(recovery.keepNow());
        failed = allocation.hasFailed();
    }
    EXPECT_GT(calls, 5);
    EXPECT_NE(folder.bytes(L"Kept\\Sheets\\" + copiesIn(folder).front()).find(std::string(calls, '+')),
              std::string::npos);
}

TEST(Recovery, OnlyTextThatNoFileHoldsIsToldOf) {
    const FileFolder folder;
    const auto work = [&](bool saves, bool clears) {
        Execution run(folder);
        run.evaluate(L"2+3");
        if (saves) {
            run.program.command(saveDefault);
        }
        if (clears) {
            run.program.command(clear);
        }
        run.program.close();
    };
    const auto isTold = [&](bool saves, bool clears) {
        work(saves, clears);
        const std::vector<std::wstring> copies = copiesIn(folder);
        EXPECT_EQ(copies.size(), 1u);
        EXPECT_NE(folder.bytes(L"Kept\\Sheets\\" + copies[0]).find("2+3"), std::string::npos);
        const bool told = !Execution(folder).hints.empty();
        DeleteFileW(folder.path(L"Kept\\Sheets\\" + copies[0]).c_str());
        return told;
    };
    EXPECT_TRUE(isTold(false, false));
    EXPECT_FALSE(isTold(true, false));
    EXPECT_FALSE(isTold(false, true));
}

TEST(Recovery, TextThatIsReplacedIsLeftAsIfItsRunHadEnded) {
    struct Row {
        unsigned command;
        bool isSaved;  ///< Before that.
        bool isTold;   ///< By the next start.
    };
    for (const Row& row : {Row{readDefault, false, true}, Row{readDefault, true, false}, Row{clear, false, false},
                           Row{bringBack, false, true}}) {
        SCOPED_TRACE(testing::Message() << std::hex << row.command << " " << row.isSaved);
        const FileFolder folder;
        Execution(folder).evaluate(L"7*8");
        {
            Execution run(folder);
            run.evaluate(L"2+3");
            if (row.isSaved) {
                run.program.command(saveDefault);
            }
            folder.put(L"d.txt", "read");
            run.program.command(row.command);
            EXPECT_NE(run.program.text(), L"2+3 = 5\n\n5");
            run.program.command(clear);
        }
        Execution next(folder);
        EXPECT_EQ(!next.hints.empty(), row.isTold);
        EXPECT_EQ(copiesIn(folder).size(), 2u);
        // What is typed after it goes to another copy.
        next.evaluate(L"1+1");
        for (const wchar_t* text : {L"2+3 = 5\n\n5", L"7*8 = 56\n\n56"}) {
            next.program.command(bringBack);
            EXPECT_EQ(next.program.text(), text);
        }
        next.program.command(bringBack);
        next.program.command(bringBack);
        EXPECT_EQ(next.program.text(), L"1+1 = 2\n\n2");
    }
}

TEST(Recovery, AnotherProgramsMarkCountsWhateverItsRights) {
    const std::wstring copy = L"2026-11-22 02-44-40-125 000007C4.rtf";
    const std::wstring name = RunningCopyMark::nameFor(copy);
    EXPECT_EQ(name, L"Global\\Calquo " + copy);
    EXPECT_FALSE(RunningCopyMark::isSet(copy));
    // Nobody may do anything with it.
    ACL nobody{};
    InitializeAcl(&nobody, sizeof nobody, ACL_REVISION);
    SECURITY_DESCRIPTOR description{};
    InitializeSecurityDescriptor(&description, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&description, TRUE, &nobody, FALSE);
    SECURITY_ATTRIBUTES rights{sizeof rights, &description, FALSE};
    const HANDLE mutex = CreateMutexW(&rights, FALSE, name.c_str());
    EXPECT_TRUE(RunningCopyMark::isSet(copy));
    CloseHandle(mutex);
    EXPECT_FALSE(RunningCopyMark::isSet(copy));
}

TEST(Recovery, ASaveIsNotedAtOnceAndUntilTheTextChanges) {
    const FileFolder folder;
    Execution run(folder);
    run.evaluate(L"2+3");
    run.program.command(saveDefault);
    ASSERT_EQ(copiesIn(folder).size(), 1u);
    EXPECT_TRUE(isSavedCopy(copiesIn(folder).front()));
    run.program.setText(L"7");
    SendMessageW(run.program.handle(), WM_QUERYENDSESSION, 0, 0);
    ASSERT_EQ(copiesIn(folder).size(), 1u);
    EXPECT_FALSE(isSavedCopy(copiesIn(folder).front()));
}

TEST(Recovery, TextIsKeptWhereItMayEndUnasked) {
    const FileFolder folder;
    Execution run(folder);
    const auto keptText = [&] { return folder.bytes(L"Kept\\Sheets\\" + copiesIn(folder).front()); };
    run.program.setText(L"first");
    SendMessageW(run.program.handle(), WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_NE(keptText().find("first"), std::string::npos);
    run.program.setText(L"second");
    SendMessageW(run.program.handle(), WM_QUERYENDSESSION, 0, 0);
    EXPECT_NE(keptText().find("second"), std::string::npos);
    run.program.setText(L"third");
    SendMessageW(run.program.handle(), WM_ENDSESSION, TRUE, 0);
    EXPECT_NE(keptText().find("third"), std::string::npos);
}

}  // namespace
}  // namespace calquo
