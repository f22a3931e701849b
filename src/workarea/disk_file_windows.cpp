// The system's calls for files, and their errors as faults.
#include "workarea/disk_file.h"

#include <algorithm>

#include "widgets/handles.h"
#include "widgets/windows_api.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

/// One at a time is written in a folder. Its fixed name lets the next one replace what the end of a machine has left.
constexpr wchar_t temporaryName[] = L"~Calquo is saving.tmp";

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

void closeFile(HANDLE file) { CloseHandle(file); }
using FileOwner = HandleOwner<HANDLE, closeFile>;

[[noreturn]] void fail(FileFailure failure) { throw FileFault{failure, {}}; }

std::wstring systemTextOf(DWORD error) {
    wchar_t text[512] = L"";
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                        text, static_cast<DWORD>(std::size(text)), nullptr);
    const std::wstring_view line(text, length);
    return std::wstring(line.substr(0, line.find_last_not_of(L"\r\n ") + 1));
}

[[noreturn]] void failBySystem(DWORD error) { throw FileFault{failureOf(error), systemTextOf(error)}; }

void require(BOOL done) {
    if (done == 0) {
        failBySystem(GetLastError());
    }
}

struct Opening {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

FileOwner openFile(const std::wstring& name, const Opening& opening) {
    const HANDLE file = CreateFileW(name.c_str(), opening.access, opening.sharing, nullptr, opening.disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    require(file != INVALID_HANDLE_VALUE);
    FileOwner owner(file);
    if (GetFileType(file) != FILE_TYPE_DISK) {
        fail(FileFailure::IsDevice);
    }
    return owner;
}

/// Without this the system says of a folder that access is denied.
void refuseFolder(DWORD attributes) {
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        fail(FileFailure::IsFolder);
    }
}

/// Renaming does not ask whether what it replaces may be written. `name` has its whole path.
void refuseWhatMayNotBeWritten(const std::wstring& name) {
    if (name.starts_with(L"\\\\.\\")) {
        fail(FileFailure::IsDevice);
    }
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return;
    }
    refuseFolder(attributes);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        fail(FileFailure::ReadOnly);
    }
    // Who has it open without letting it be deleted does not let it be replaced either; the renaming itself would say
    // no more than that access is denied.
    openFile(name, {GENERIC_WRITE | DELETE, shareAll, OPEN_EXISTING});
}

/// A file that vanishes at its end, also at that of its process, unless it has taken another's name.
class TemporaryFile {
public:
    explicit TemporaryFile(std::wstring name)
        : name_(std::move(name)), file_(openFile(name_, {GENERIC_WRITE | DELETE, FILE_SHARE_READ, CREATE_ALWAYS})) {
        setVanishing(true);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        file_.reset();
        if (!isRenamed_) {
            DeleteFileW(name_.c_str());
        }
    }

    void write(std::string_view bytes) {
        constexpr std::size_t largestPiece = std::size_t{1} << 20;
        while (!bytes.empty()) {
            DWORD written = 0;
            require(WriteFile(file_.get(), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), largestPiece)),
                              &written, nullptr));
            bytes.remove_prefix(written);
        }
        require(FlushFileBuffers(file_.get()));
    }

    void takeNameOf(const std::wstring& name) {
        setVanishing(false);
        file_.reset();
        // A virus scanner may hold a file that has just been closed for a moment.
        constexpr int mostTries = 5;
        constexpr DWORD pause = 50;  // milliseconds
        for (int tries = 1; !isRenamed_; ++tries) {
            isRenamed_ =
                MoveFileExW(name_.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
            const DWORD error = GetLastError();
            const bool mayPass = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
            if (!isRenamed_ && (!mayPass || tries == mostTries)) {
                failBySystem(error);
            }
            if (!isRenamed_) {
                Sleep(pause);
            }
        }
    }

private:
    /// Best effort: not all file systems can do this.
    void setVanishing(bool vanishing) {
        FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(vanishing)};
        SetFileInformationByHandle(file_.get(), FileDispositionInfo, &disposition, sizeof disposition);
    }

    std::wstring name_;
    FileOwner file_;
    bool isRenamed_ = false;
};

}  // namespace

std::wstring fullFileName(const std::wstring& name) {
    std::wstring whole(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length = GetFullPathNameW(name.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
    whole.resize(std::min<std::size_t>(length, whole.size()));
    return whole.empty() ? name : whole;
}

bool fileExists(const std::wstring& name) { return GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::string readFile(const std::wstring& name) {
    refuseFolder(GetFileAttributesW(name.c_str()));
    const FileOwner file = openFile(name, {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING});
    LARGE_INTEGER size{};
    require(GetFileSizeEx(file.get(), &size));
    if (size.QuadPart > static_cast<LONGLONG>(largestFile)) {
        fail(FileFailure::TooLarge);
    }
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD length = 0;
    require(ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr));
    bytes.resize(length);
    return bytes;
}

void replaceFile(const std::wstring& name, std::string_view bytes) {
    const std::wstring whole = fullFileName(name);
    refuseWhatMayNotBeWritten(whole);
    TemporaryFile file(whole.substr(0, whole.find_last_of(L"\\/") + 1) + temporaryName);
    file.write(bytes);
    file.takeNameOf(whole);
}

}  // namespace calquo
