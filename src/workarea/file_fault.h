// Why a file could not be read into the work area or written from it, and what to do about it, in words for its user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace calquo {

enum class FileFailure : std::uint8_t {
    Missing,
    FolderMissing,
    Unreachable,  ///< The drive or share is not there, or the network fails.
    InvalidName,
    PathTooLong,
    IsFolder,
    IsDevice,
    ReadOnly,
    AccessDenied,
    InUse,
    DiskFull,
    NotReady,
    OutOfMemory,
    TooLarge,     ///< More bytes than largestFile.
    TooMuchText,  ///< More text than fits TextCost.
    NotRichText,  ///< Does not begin as rich text does.
    CutOff,       ///< Rich text whose end is missing.
    Refused,      ///< Rich text that the control does not understand.
    NotText,      ///< Plain text with NUL characters.
    Other,
};

/// What is thrown where a file cannot be read or written.
struct FileFault {
    FileFailure failure;
    std::wstring systemText;  ///< The system's own words; they tell what Other is.
};

/// The failure that an error number of Windows stands for, at a file whose path has this length and whose drive is
/// there or not: the system says of a missing drive and of too long a path that a folder is missing.
FileFailure failureOf(std::uint32_t systemError, std::size_t pathLength, bool driveIsThere);

/// Whether the failure says that there is no file.
constexpr bool isAbsence(FileFailure failure) {
    return failure == FileFailure::Missing || failure == FileFailure::FolderMissing;
}

/// The reason as a sentence, and what to do about it as another.
std::wstring reasonOf(const FileFault& fault);
std::wstring adviceOf(const FileFault& fault);

}  // namespace calquo
