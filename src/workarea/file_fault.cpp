// The error numbers of files, and the sentences for their failures.
#include "workarea/file_fault.h"

#include <algorithm>
#include <iterator>

#include "workarea/disk_file.h"

namespace calquo {
namespace {

/// Error numbers as Windows documents them.
struct SystemErrorRow {
    std::uint32_t number;
    FileFailure failure;
};
constexpr SystemErrorRow systemErrorRows[] = {
    {2, FileFailure::Missing},        {3, FileFailure::FolderMissing},
    {5, FileFailure::AccessDenied},   {8, FileFailure::OutOfMemory},
    {14, FileFailure::OutOfMemory},   {15, FileFailure::Unreachable},  // no such drive
    {19, FileFailure::ReadOnly},                                       // of the whole medium
    {21, FileFailure::NotReady},      {32, FileFailure::InUse},
    {33, FileFailure::InUse},                                           // a part is locked
    {39, FileFailure::DiskFull},      {51, FileFailure::Unreachable},   // the computer in the network does not listen
    {53, FileFailure::Unreachable},                                     // no such computer in the network
    {54, FileFailure::Unreachable},                                     // the network is busy
    {55, FileFailure::Unreachable},   {59, FileFailure::Unreachable},   // an error of the network
    {64, FileFailure::Unreachable},                                     // the share is gone
    {65, FileFailure::AccessDenied},  {66, FileFailure::Unreachable},   // what Wine says of a share that is not there
    {67, FileFailure::Unreachable},                                     // no such share
    {112, FileFailure::DiskFull},     {121, FileFailure::Unreachable},  // no answer in time
    {123, FileFailure::InvalidName},  {161, FileFailure::InvalidName},
    {206, FileFailure::PathTooLong},  {267, FileFailure::FolderMissing},  // a file stands where a folder should
    {433, FileFailure::Unreachable},                                      // no such device
    {1175, FileFailure::InUse},  // what was to be replaced, or to replace it, cannot be renamed
    {1176, FileFailure::InUse},       {1177, FileFailure::InUse},
    {1203, FileFailure::Unreachable},                                    // no network has such a path
    {1222, FileFailure::Unreachable},                                    // no network
    {1231, FileFailure::Unreachable},                                    // no way through the network
    {1232, FileFailure::Unreachable}, {1236, FileFailure::Unreachable},  // the connection was ended
    {1295, FileFailure::DiskFull},                                       // the user's share of it
    {1450, FileFailure::OutOfMemory}, {1455, FileFailure::OutOfMemory},
};

struct FailureRow {
    FileFailure failure;
    const wchar_t* reason;
    const wchar_t* advice;
};
constexpr FailureRow failureRows[] = {
    {FileFailure::Missing, L"The file does not exist.", L"Check the name, or choose another file."},
    {FileFailure::FolderMissing, L"The folder of the file does not exist.", L"Make the folder, or choose another one."},
    {FileFailure::Unreachable, L"The drive or network folder of the file cannot be reached.",
     L"Connect it and try again, or choose a file elsewhere."},
    {FileFailure::InvalidName, L"A file cannot have this name.", L"Choose another name."},
    {FileFailure::PathTooLong, L"The path of the file is too long.",
     L"Choose a shorter name, or a folder whose path is shorter."},
    {FileFailure::IsFolder, L"A folder has this name.", L"Choose another name."},
    {FileFailure::IsDevice, L"This is the name of a device, not of a file.", L"Choose another name."},
    {FileFailure::ReadOnly, L"The file is read-only.",
     L"Choose another name, or clear the mark \"Read-only\" in the properties of the file."},
    {FileFailure::AccessDenied, L"Access to the file or its folder is denied.",
     L"Choose a folder in which you may write, such as that of your documents."},
    {FileFailure::InUse, L"Another program is using the file.",
     L"Close the file there and try again, or choose another name."},
    {FileFailure::DiskFull, L"The disk is full.", L"Delete what is not needed there, or choose another disk."},
    {FileFailure::NotReady, L"The drive is not ready.", L"Put the disk in and try again."},
    {FileFailure::OutOfMemory, L"There is not enough memory.", L"Close other programs and try again."},
    {FileFailure::TooLarge, L"The file is larger than 64 megabytes, the most that Calquo opens.",
     L"Divide it into smaller files with another program."},
    {FileFailure::TooMuchText, L"The file has too many or too long lines to be shown.",
     L"Divide it into smaller files with another program."},
    {FileFailure::NotRichText, L"The name of the file ends with \".rtf\", but there is no rich text in it.",
     L"If it is plain text, give it a name that ends with \".txt\"."},
    {FileFailure::CutOff, L"The file is damaged: its end is missing.", L"Look for an older copy of it."},
    {FileFailure::Refused, L"The rich text in the file is damaged.",
     L"Open it with another program and save it as plain text."},
    {FileFailure::NotText, L"There is no text in the file, but data of another kind.", L"Choose another file."},
    {FileFailure::Other, L"The system reports an error.", L"Try again, or choose another file."},
};

const FailureRow& rowOf(FileFailure failure) { return *std::ranges::find(failureRows, failure, &FailureRow::failure); }

}  // namespace

FileFailure failureOf(std::uint32_t systemError, std::size_t pathLength, bool driveIsThere) {
    const auto* const row = std::ranges::find(systemErrorRows, systemError, &SystemErrorRow::number);
    const FileFailure failure = row == std::end(systemErrorRows) ? FileFailure::Other : row->failure;
    if (isAbsence(failure) && !driveIsThere) {
        return FileFailure::Unreachable;
    }
    const bool maySayTooLong = isAbsence(failure) || failure == FileFailure::InvalidName;
    return maySayTooLong && pathLength > longestPath ? FileFailure::PathTooLong : failure;
}

std::wstring reasonOf(const FileFault& fault) {
    const bool systemKnowsBetter = fault.failure == FileFailure::Other && !fault.systemText.empty();
    return systemKnowsBetter ? fault.systemText : rowOf(fault.failure).reason;
}

std::wstring adviceOf(const FileFault& fault) { return rowOf(fault.failure).advice; }

}  // namespace calquo
