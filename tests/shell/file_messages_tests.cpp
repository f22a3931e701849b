// The words of the file commands.
#include "shell/file_messages.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

TEST(FileMessages, EachCommandHasItsDialog) {
    struct Row {
        Command command;
        FileDialog dialog;
        const wchar_t* title;
    };
    const Row rows[] = {
        {Command::ReadFromFile, FileDialog::Open, L"Retrieving the Work Area Content"},
        {Command::SaveAsFile, FileDialog::Save, L"Saving the Work Area Content"},
        {Command::SelectDefaultFile, FileDialog::Save, L"Select the Default Work Area File"},
    };
    for (const Row& row : rows) {
        const FileRequest request = fileRequestOf(row.command, L".\\WorkArea.rtf");
        EXPECT_EQ(request.dialog, row.dialog);
        EXPECT_EQ(request.title, row.title);
        EXPECT_EQ(request.name, L".\\WorkArea.rtf");
    }
}

TEST(FileMessages, ADialogsFailureIsNumbered) {
    const BoxText box = dialogFailedBox(12290);
    EXPECT_EQ(box.kind, BoxKind::Failure);
    EXPECT_EQ(box.caption, L"Error #12290");
    EXPECT_EQ(box.text, L"File selection error, no action taken.");
}

TEST(FileMessages, NameTheFileAndTheReason) {
    const std::wstring file = L"D:\\sheets\\July.rtf";
    const FileFault fault{FileFailure::InUse, {}};
    const BoxText boxes[] = {readFailedBox(file, fault), saveFailedBox(file, fault), saveFailedAtExitBox(file, fault)};
    for (const BoxText& box : boxes) {
        EXPECT_EQ(box.caption, L"Calquo");
        EXPECT_NE(box.text.find(file), std::wstring::npos);
        EXPECT_NE(box.text.find(reasonOf(fault)), std::wstring::npos);
    }
    EXPECT_NE(boxes[0].text, boxes[1].text);
    EXPECT_EQ(boxes[0].kind, BoxKind::Failure);
    EXPECT_EQ(boxes[1].kind, BoxKind::Failure);
    EXPECT_EQ(boxes[2].kind, BoxKind::RetryOrCancel);
    EXPECT_NE(replaceUnreadFileBox(file).text.find(file), std::wstring::npos);
    EXPECT_EQ(replaceUnreadFileBox(file).kind, BoxKind::YesNoOrCancel);
}

TEST(FileMessages, AbsenceIsNotAnyFailure) {
    for (int failure = 0; failure <= static_cast<int>(FileFailure::Other); ++failure) {
        const auto given = static_cast<FileFailure>(failure);
        EXPECT_EQ(isAbsence(given), given == FileFailure::Missing || given == FileFailure::FolderMissing);
    }
}

}  // namespace
}  // namespace calquo
