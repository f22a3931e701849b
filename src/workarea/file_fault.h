// Why a file could not be read into the work area or written from it, in words for its user.
#pragma once

#include <cstdint>
#include <string>

namespace calquo {

enum class FileFailure : std::uint8_t {
    Missing,
    FolderMissing,
    InvalidName,
    IsFolder,
    IsDevice,
    ReadOnly,
    AccessDenied,
    InUse,
    DiskFull,
    NotReady,
    OutOfMemory,
    TooLarge,         ///< More bytes than largestFile.
    TooMuchText,      ///< More text than fits TextCost.
    NotRichText,      ///< Does not begin as rich text does.
    CutOff,           ///< Rich text whose end is missing.
    NestedTooDeeply,  ///< Rich text with more groups in one another than controls bear.
    Refused,          ///< Rich text that the control does not understand.
    NotText,          ///< Plain text with NUL characters.
    Other,
};

/// What is thrown where a file cannot be read or written.
struct FileFault {
    FileFailure failure;
    std::wstring systemText;  ///< The system's own words; they tell what Other is.
};

/// The failure that an error number of Windows stands for.
FileFailure failureOf(std::uint32_t systemError);

/// The reason as a sentence.
std::wstring reasonOf(const FileFault& fault);

}  // namespace calquo
