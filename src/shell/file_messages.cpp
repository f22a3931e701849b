// The titles of the dialogs and the texts of the message boxes, each written once.
#include "shell/file_messages.h"

#include <algorithm>
#include <iterator>

#include "values/errors.h"
#include "values/program.h"

namespace calquo {
namespace {

struct RequestRow {
    Command command;
    FileDialog dialog;
    const wchar_t* title;
};
constexpr RequestRow requestRows[] = {
    {Command::SelectDefaultFile, FileDialog::Save, L"Select the Default Work Area File"},
    {Command::ReadFromFile, FileDialog::Open, L"Retrieving the Work Area Content"},
    {Command::SaveAsFile, FileDialog::Save, L"Saving the Work Area Content"},
};

BoxText failureBox(BoxKind kind, const std::wstring& whatFailed, const std::wstring& file, const FileFault& fault) {
    return {kind, wideProgramName, whatFailed + L"\n" + file + L"\n\n" + reasonOf(fault) + L"\n" + adviceOf(fault)};
}

constexpr wchar_t cannotRead[] = L"The work area cannot be read from the file";
constexpr wchar_t cannotSave[] = L"The work area cannot be saved to the file";

}  // namespace

FileRequest fileRequestOf(Command command, const std::wstring& defaultFile) {
    const RequestRow* const row = std::ranges::find(requestRows, command, &RequestRow::command);
    if (row == std::end(requestRows)) {
        raise(ErrorCode::InternalFault);
    }
    return {row->dialog, row->title, defaultFile};
}

BoxText dialogFailedBox(std::uint32_t errorCode) {
    return {BoxKind::Failure, L"Error #" + std::to_wstring(errorCode), L"File selection error, no action taken."};
}

BoxText readFailedBox(const std::wstring& file, const FileFault& fault) {
    return failureBox(BoxKind::Failure, cannotRead, file, fault);
}

BoxText saveFailedBox(const std::wstring& file, const FileFault& fault) {
    return failureBox(BoxKind::Failure, cannotSave, file, fault);
}

BoxText saveFailedAtExitBox(const std::wstring& file, const FileFault& fault) {
    BoxText box = failureBox(BoxKind::RetryOrCancel, cannotSave, file, fault);
    box.text +=
        L"\n\nCancel keeps Calquo open: then you can save the work area elsewhere, or turn off \"Save Default at "
        L"Exit\".";
    return box;
}

BoxText cannotBeReadAgainBox(const std::wstring& file, const FileFault& fault) {
    return {BoxKind::OkOrCancel, wideProgramName,
            L"Calquo will not be able to read the work area again from the file\n" + file + L"\n\n" + reasonOf(fault) +
                L"\n\nOK saves it all the same. Cancel saves nothing: then you can divide the work area and save its "
                L"parts."};
}

std::wstring keptAtExitHint(const std::wstring& kept) {
    return L"When your last sheet was saved, another file had its name. That file is kept as " + kept;
}

std::wstring keptFileHint(const std::wstring& kept) { return L"The file that had this name is kept as " + kept; }

}  // namespace calquo
