// The error numbers of files, and the sentences for their failures.
#include "workarea/file_fault.h"

namespace calquo {
namespace {

/// Error numbers as Windows documents them.
struct SystemErrorRow {
    std::uint32_t number;
    FileFailure failure;
};
constexpr SystemErrorRow systemErrorRows[] = {
    {2, FileFailure::Missing},         {3, FileFailure::FolderMissing},
    {5, FileFailure::AccessDenied},    {8, FileFailure::OutOfMemory},
    {14, FileFailure::OutOfMemory},    {15, FileFailure::FolderMissing},  // no such drive
    {19, FileFailure::ReadOnly},                                          // of the whole medium
    {21, FileFailure::NotReady},       {32, FileFailure::InUse},
    {33, FileFailure::InUse},                                             // a part is locked
    {39, FileFailure::DiskFull},       {53, FileFailure::FolderMissing},  // no such computer in the network
    {67, FileFailure::FolderMissing},                                     // no such folder in the network
    {112, FileFailure::DiskFull},      {123, FileFailure::InvalidName},
    {161, FileFailure::InvalidName},   {206, FileFailure::InvalidName},  // too long
    {267, FileFailure::FolderMissing},                                   // a file stands where a folder should
    {1450, FileFailure::OutOfMemory},  {1455, FileFailure::OutOfMemory},
};

const wchar_t* sentenceOf(FileFailure failure) {
    switch (failure) {
        case FileFailure::Missing:
            return L"The file does not exist.";
        case FileFailure::FolderMissing:
            return L"The folder of the file does not exist.";
        case FileFailure::InvalidName:
            return L"A file cannot have this name.";
        case FileFailure::IsFolder:
            return L"A folder has this name.";
        case FileFailure::IsDevice:
            return L"This is the name of a device, not of a file.";
        case FileFailure::ReadOnly:
            return L"The file is read-only.";
        case FileFailure::AccessDenied:
            return L"Access to the file or its folder is denied.";
        case FileFailure::InUse:
            return L"Another program is using the file.";
        case FileFailure::DiskFull:
            return L"The disk is full.";
        case FileFailure::NotReady:
            return L"The drive is not ready.";
        case FileFailure::OutOfMemory:
            return L"There is not enough memory.";
        case FileFailure::TooLarge:
            return L"The file is larger than 16 megabytes, the most that Calquo opens.";
        case FileFailure::TooMuchText:
            return L"The file has too many or too long lines to be shown.";
        case FileFailure::NotRichText:
            return L"The name of the file ends with \".rtf\", but there is no rich text in it.";
        case FileFailure::CutOff:
            return L"The file is damaged: its end is missing.";
        case FileFailure::NestedTooDeeply:
            return L"The rich text in the file is nested too deeply.";
        case FileFailure::Refused:
            return L"The rich text in the file is damaged.";
        case FileFailure::NotText:
            return L"There is no text in the file, but data of another kind.";
        case FileFailure::Other:
            break;
    }
    return L"The system reports an error.";
}

}  // namespace

FileFailure failureOf(std::uint32_t systemError) {
    for (const SystemErrorRow& row : systemErrorRows) {
        if (row.number == systemError) {
            return row.failure;
        }
    }
    return FileFailure::Other;
}

std::wstring reasonOf(const FileFault& fault) {
    const bool systemKnowsBetter = fault.failure == FileFailure::Other && !fault.systemText.empty();
    return systemKnowsBetter ? fault.systemText : sentenceOf(fault.failure);
}

}  // namespace calquo
