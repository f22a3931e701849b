// The program's file commands, its start and its end, with a user who answers from a list.
#include "shell/file_commands.h"

#include <gtest/gtest.h>

#include <functional>

#include "file_folder.h"
#include "held_key.h"
#include "program.h"

// Needs <windows.h> before it.
#include <shlobj.h>

namespace calquo {
namespace {

constexpr unsigned clear = 0x120, readDefault = 0x140, saveDefault = 0x141, readAtStartup = 0x142, saveAtExit = 0x143,
                   selectDefault = 0x144, readFrom = 0x160, saveAs = 0x161;

/// The user: gives the answers in their order, then cancels, and notes what was asked.
struct User {
    UserDialogs dialogs() {
        return {[this](WindowHandle, const BoxText& box) {
                    boxes.push_back(box);
                    if (atBox) {
                        atBox();
                    }
                    return boxes.size() <= answers.size() ? answers[boxes.size() - 1] : BoxAnswer::Cancel;
                },
                [this](WindowHandle, const FileRequest& request) {
                    requests.push_back(request);
                    return choice;
                },
                [this](const std::wstring& text) { hints.push_back(text); }};
    }

    std::vector<BoxAnswer> answers;
    FileChoice choice;
    std::function<void()> atBox;
    std::vector<BoxText> boxes;
    std::vector<FileRequest> requests;
    std::vector<std::wstring> hints;
};

enum Option { ReadAtStartup = 0x10, SaveAtExit = 0x20 };

/// The settings of a user whose default file is `file`.
MemoryStorage stored(const std::wstring& file, unsigned options = 0) {
    MemoryStorage storage;
    storage.values[L"Default File"] = file;
    storage.values[L"Flags"] = std::uint32_t{options};
    return storage;
}

bool mentions(const BoxText& box, const std::wstring& words) { return box.text.find(words) != std::wstring::npos; }

std::wstring answerOf(Program& program, std::wstring_view keys) {
    for (const wchar_t unit : keys) {
        SendMessageW(program.workArea(), WM_CHAR, unit, 1);
    }
    SendMessageW(program.workArea(), WM_KEYDOWN, VK_RETURN, 1);
    return program.text();
}

TEST(FileCommands, FilesAreReadAndSavedByTheirEnding) {
    for (const wchar_t* name : {L"a.rtf", L"a.txt"}) {
        SCOPED_TRACE(name);
        const FileFolder folder;
        folder.put(L"b.txt", "old");
        User user;
        Program program(stored(L".\\WorkArea.rtf"), user.dialogs());
        user.choice.name = folder.path(name);
        program.setText(L"2+3");
        program.command(saveAs);
        EXPECT_EQ(folder.bytes(name).starts_with("{\\rtf1"), name == std::wstring_view(L"a.rtf"));
        program.setText(L"7");
        program.command(readFrom);
        EXPECT_EQ(program.text(), L"2+3");
        ASSERT_EQ(user.requests.size(), 2u);
        for (const FileRequest& request : user.requests) {
            EXPECT_EQ(request.name, L".\\WorkArea.rtf");
            EXPECT_EQ(request.dialog, &request == &user.requests[0] ? FileDialog::Save : FileDialog::Open);
        }
        EXPECT_EQ(program.settings().text(TextSetting::DefaultFile), L".\\WorkArea.rtf");
        // Another default file is neither read nor written until that is wanted.
        user.choice.name = folder.path(L"b.txt");
        program.command(selectDefault);
        EXPECT_EQ(user.requests.back().dialog, FileDialog::Save);
        EXPECT_EQ(program.text(), L"2+3");
        EXPECT_EQ(folder.bytes(L"b.txt"), "old");
        EXPECT_EQ(std::get<std::wstring>(program.storage().values.at(L"Default File")), folder.path(L"b.txt"));
        program.command(saveDefault);
        EXPECT_EQ(folder.bytes(L"b.txt"), "2+3");
        EXPECT_EQ(folder.bytes(L"b.txt.bak"), "old");
        ASSERT_EQ(user.hints.size(), 1u);
        EXPECT_TRUE(user.hints[0].ends_with(folder.path(L"b.txt.bak")));
        program.setText(L"7");
        program.command(readDefault);
        EXPECT_EQ(answerOf(program, L"*4"), L"2+3*4 = 14\n\n14");
        EXPECT_TRUE(user.boxes.empty());
    }
}

TEST(FileCommands, FailuresOfCommandsNameTheFileAndChangeNothing) {
    const FileFolder folder;
    const std::wstring file = folder.path(L"d.rtf"), missing = folder.path(L"none.txt");
    folder.put(L"d.rtf", "no rich text");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    User user;
    Program program(stored(file), user.dialogs());
    program.setText(L"2+3");
    user.choice.name = missing;
    for (const unsigned command : {readDefault, saveDefault, readFrom}) {
        program.command(command);
    }
    // A closed dialog does nothing, and one that failed is numbered.
    user.choice = {};
    for (const std::uint32_t error : {0u, 12290u}) {
        user.choice.errorCode = error;
        for (const unsigned command : {selectDefault, readFrom, saveAs}) {
            program.command(command);
        }
    }
    ASSERT_EQ(user.boxes.size(), 6u);
    EXPECT_TRUE(mentions(user.boxes[0], file) && mentions(user.boxes[0], L"no rich text"));
    EXPECT_TRUE(mentions(user.boxes[1], file) && mentions(user.boxes[1], L"read-only"));
    EXPECT_TRUE(mentions(user.boxes[2], missing) && mentions(user.boxes[2], L"not exist"));
    for (std::size_t index = 0; index < user.boxes.size(); ++index) {
        EXPECT_EQ(user.boxes[index].kind, BoxKind::Failure);
        EXPECT_EQ(user.boxes[index].caption, index < 3 ? L"Calquo" : L"Error #12290");
    }
    EXPECT_EQ(program.text(), L"2+3");
    EXPECT_EQ(program.settings().text(TextSetting::DefaultFile), file);
    EXPECT_EQ(folder.bytes(L"d.rtf"), "no rich text");
    EXPECT_EQ(folder.names().size(), 1u);
}

TEST(FileCommands, KeysSaveToTheLastFileAndReadAnother) {
    const FileFolder folder;
    folder.put(L"b.txt", "7*8");
    User user;
    Program program({}, user.dialogs());
    const auto press = [&](int key, int second = 0) {
        const HeldKey other(second);
        program.press(program.workArea(), WM_KEYDOWN, static_cast<WPARAM>(key), 1, VK_CONTROL);
    };
    program.setText(L"2+3");
    press('S', VK_MENU);  // types a character on some keyboards
    constexpr LPARAM repeated = 1 << 30;
    program.press(program.workArea(), WM_KEYDOWN, 'S', repeated, VK_CONTROL);
    EXPECT_TRUE(user.requests.empty());
    user.choice.name = folder.path(L"a.txt");
    press('S');
    ASSERT_EQ(user.requests.size(), 1u);
    EXPECT_EQ(user.requests[0].dialog, FileDialog::Save);
    program.setText(L"2+3+4");
    press('S');
    EXPECT_EQ(folder.bytes(L"a.txt"), "2+3+4");
    user.choice.name = folder.path(L"b.txt");
    press('O');
    ASSERT_EQ(user.requests.size(), 2u);
    EXPECT_EQ(user.requests[1].dialog, FileDialog::Open);
    EXPECT_EQ(answerOf(program, L""), L"7*8 = 56\n\n56");
    press('S');
    EXPECT_EQ(folder.bytes(L"b.txt"), "7*8 = 56\r\n\r\n56");
    EXPECT_EQ(folder.bytes(L"a.txt"), "2+3+4");
    // A reading that is undone takes its file away with it, and one that is done again brings it back.
    user.choice.name = folder.path(L"a.txt");
    press('O');
    press('Z');
    press('S');
    press('Y');
    press('S');
    EXPECT_EQ(folder.bytes(L"b.txt"), "7*8 = 56\r\n\r\n56");
    EXPECT_EQ(folder.bytes(L"a.txt"), "2+3+4");
    EXPECT_EQ(folder.names().size(), 2u);
    EXPECT_EQ(user.requests.size(), 3u);
}

/// The message's parameter for files that are dropped.
WPARAM dropOf(const std::wstring& file) {
    const std::size_t bytes = (file.size() + 2) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + bytes);
    auto* const drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    file.copy(reinterpret_cast<wchar_t*>(drop + 1), file.size());
    GlobalUnlock(memory);
    return reinterpret_cast<WPARAM>(memory);
}

TEST(FileCommands, ADroppedFileIsReadAsOneStep) {
    const FileFolder folder;
    folder.put(L"a b.txt", "7*8");
    User user;
    Program program({}, user.dialogs());
    for (const HWND window : {program.handle(), program.workArea()}) {
        EXPECT_NE(GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
        program.setText(L"2+3");
        SendMessageW(window, WM_DROPFILES, dropOf(folder.path(L"a b.txt")), 0);
        EXPECT_EQ(program.text(), L"7*8");
        SendMessageW(program.workArea(), EM_UNDO, 0, 0);
        EXPECT_EQ(program.text(), L"2+3");
    }
    SendMessageW(program.handle(), WM_DROPFILES, dropOf(folder.path(L"none.txt")), 0);
    ASSERT_EQ(user.boxes.size(), 1u);
    EXPECT_TRUE(mentions(user.boxes[0], folder.path(L"none.txt")));
    EXPECT_EQ(program.text(), L"2+3");
}

// --- The start ------------------------------------------------------------------------------------------------------

TEST(FileCommands, TheStartReadsTheDefaultFileWhenWanted) {
    const FileFolder folder;
    folder.put(L"d.txt", "1+1\r\n2+3");
    for (const unsigned options : {0u, unsigned{ReadAtStartup}}) {
        User user;
        Program program(stored(folder.path(L"d.txt"), options), user.dialogs());
        EXPECT_EQ(program.text(), options == 0 ? L"" : L"1+1\n2+3");
        EXPECT_TRUE(user.boxes.empty());
        EXPECT_EQ(SendMessageW(program.workArea(), EM_CANUNDO, 0, 0), FALSE);
        if (options != 0) {
            EXPECT_EQ(answerOf(program, L"*4"), L"1+1\n2+3*4 = 14\n\n14");
        }
    }
}

TEST(FileCommands, TheStartIsSilentAboutAnAbsentFileAlone) {
    const FileFolder folder;
    folder.put(L"d.rtf", "no rich text");
    for (const wchar_t* name : {L"none.rtf", L"none\\x.rtf", L"d.rtf", L"X:\\d.rtf"}) {
        User user;
        const std::wstring_view file = name;
        Program program(stored(file[0] == L'X' ? name : folder.path(name), ReadAtStartup), user.dialogs());
        EXPECT_EQ(user.boxes.size(), file.ends_with(L"d.rtf") ? 1u : 0u);
        EXPECT_EQ(answerOf(program, L"2+3"), L"2+3 = 5\n\n5");
    }
}

TEST(FileCommands, TheFileOfTheCommandLineIsReadInsteadOfTheDefaultFile) {
    const FileFolder folder;
    folder.put(L"d.txt", "default");
    folder.put(L"a.txt", "7*8");
    for (const wchar_t* name : {L"a.txt", L"none.txt"}) {
        User user;
        Program program(stored(folder.path(L"d.txt"), ReadAtStartup), user.dialogs(), {folder.path(name), {}});
        const bool isThere = name[0] == L'a';
        EXPECT_EQ(user.boxes.size(), isThere ? 0u : 1u);
        EXPECT_EQ(program.text(), isThere ? L"7*8" : L"");
        EXPECT_EQ(SendMessageW(program.workArea(), EM_CANUNDO, 0, 0), FALSE);
    }
}

// --- The end --------------------------------------------------------------------------------------------------------

/// What a user's way to end the program does to its window.
struct Ending {
    const char* name;
    void (*end)(Program&);
};
const Ending endings[] = {
    {"close", [](Program& program) { program.close(); }},
    {"exit", [](Program& program) { program.command(0x7FFF); }},
    {"destroyed unasked", [](Program& program) { DestroyWindow(program.handle()); }},
};

TEST(FileCommands, TheEndSavesTheDefaultFileWhenWanted) {
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.name);
        const FileFolder folder;
        User user;
        for (const unsigned options : {0u, unsigned{SaveAtExit}}) {
            Program program(stored(folder.path(L"d.txt"), options), user.dialogs());
            program.setText(L"2+3");
            ending.end(program);
            EXPECT_EQ(program.handle(), nullptr);
            EXPECT_EQ(folder.bytes(L"d.txt"), options == 0 ? "(none)" : "2+3");
        }
        EXPECT_TRUE(user.boxes.empty());
    }
}

TEST(FileCommands, AFailedSaveAtTheEndIsTriedAgainOrKeepsTheWindow) {
    const FileFolder folder;
    folder.put(L"d.txt", "old");
    const std::wstring file = folder.path(L"d.txt");
    for (const Ending& ending : {endings[0], endings[1]}) {
        SCOPED_TRACE(ending.name);
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
        User user;
        user.answers = {BoxAnswer::Retry, BoxAnswer::Cancel, BoxAnswer::Retry};
        Program program(stored(file, SaveAtExit), user.dialogs());
        program.setText(L"2+3");
        ending.end(program);
        ASSERT_NE(program.handle(), nullptr);
        EXPECT_EQ(user.boxes.size(), 2u);
        for (const BoxText& box : user.boxes) {
            EXPECT_EQ(box.kind, BoxKind::RetryOrCancel);
            EXPECT_TRUE(mentions(box, file) && mentions(box, L"read-only"));
        }
        EXPECT_EQ(program.text(), L"2+3");
        EXPECT_EQ(folder.bytes(L"d.txt"), "old");
        // The reason goes away while the third box is open.
        user.atBox = [&] { SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL); };
        ending.end(program);
        EXPECT_EQ(program.handle(), nullptr);
        EXPECT_EQ(user.boxes.size(), 3u);
        EXPECT_EQ(folder.bytes(L"d.txt"), "2+3");
        folder.put(L"d.txt", "old");
    }
}

TEST(FileCommands, AForeignDefaultFileStaysBesideTheOneThatIsSavedAtTheEnd) {
    struct Row {
        const char* name;
        unsigned options;
        void (*act)(Program&, const FileFolder&, User&);
        const char* bytes;
        const char* kept;
    };
    constexpr auto type = [](Program& program, const FileFolder&, User&) { program.setText(L"2+3"); };
    constexpr char foreign[] = "from another machine";
    const Row rows[] = {
        {"has appeared since the start", ReadAtStartup | SaveAtExit, type, "2+3", foreign},
        {"has never been read", SaveAtExit, type, "2+3", foreign},
        {"has been chosen", SaveAtExit,
         [](Program& program, const FileFolder& folder, User& user) {
             program.setText(L"2+3");
             user.choice.name = folder.path(L"d.txt");
             program.command(selectDefault);
         },
         "2+3", foreign},
        {"is not touched by an untouched sheet", SaveAtExit, [](Program&, const FileFolder&, User&) {}, foreign,
         "(none)"},
        {"has been read", SaveAtExit,
         [](Program& program, const FileFolder&, User&) {
             program.command(readDefault);
             program.setText(L"2+3");
         },
         "2+3", "(none)"},
        {"has been saved", SaveAtExit,
         [](Program& program, const FileFolder& folder, User&) {
             program.command(readDefault);
             program.command(clear);
             program.command(saveDefault);
             EXPECT_EQ(folder.bytes(L"d.txt"), "");
             program.setText(L"2+3");
         },
         "2+3", "(none)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const FileFolder folder;
        User user;
        Program program(stored(folder.path(L"d.txt"), row.options), user.dialogs());
        folder.put(L"d.txt", foreign);
        row.act(program, folder, user);
        program.close();
        EXPECT_EQ(program.handle(), nullptr);
        EXPECT_TRUE(user.boxes.empty());
        EXPECT_EQ(folder.bytes(L"d.txt"), row.bytes);
        EXPECT_EQ(folder.bytes(L"d.txt.bak"), row.kept);
    }
}

TEST(FileCommands, AClearedWorkAreaIsSaved) {
    const FileFolder folder;
    folder.put(L"d.txt", "old");
    User user;
    Program program(stored(folder.path(L"d.txt"), SaveAtExit), user.dialogs());
    program.setText(L"2+3");
    program.command(clear);
    program.close();
    EXPECT_EQ(folder.bytes(L"d.txt"), "");
}

TEST(FileCommands, TheEndOfTheSessionSavesOrWaits) {
    const FileFolder folder;
    User user;
    Program program(stored(folder.path(L"none\\d.txt"), SaveAtExit), user.dialogs());
    program.setText(L"2+3");
    // An end that comes anyway leaves no time for a box.
    EXPECT_EQ(SendMessageW(program.handle(), WM_QUERYENDSESSION, 0, ENDSESSION_CRITICAL), TRUE);
    SendMessageW(program.handle(), WM_ENDSESSION, FALSE, 0);
    EXPECT_TRUE(user.boxes.empty());
    EXPECT_EQ(SendMessageW(program.handle(), WM_QUERYENDSESSION, 0, 0), FALSE);
    SendMessageW(program.handle(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(user.boxes.size(), 1u);
    user.choice.name = folder.path(L"d.txt");
    program.command(selectDefault);
    EXPECT_EQ(SendMessageW(program.handle(), WM_QUERYENDSESSION, 0, 0), TRUE);
    EXPECT_EQ(folder.bytes(L"d.txt"), "2+3");
    // Somebody else wants to stay, and the user goes on.
    SendMessageW(program.handle(), WM_ENDSESSION, FALSE, 0);
    program.setText(L"7*8");
    program.close();
    EXPECT_EQ(folder.bytes(L"d.txt"), "7*8");
    EXPECT_EQ(user.boxes.size(), 1u);
}

}  // namespace
}  // namespace calquo
