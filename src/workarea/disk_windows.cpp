// The system's calls for files, and their errors as faults.
#include "workarea/disk.h"

#include <algorithm>
#include <random>

#include "widgets/handles.h"
#include "widgets/windows_api.h"
#include "workarea/disk_file.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

void closeFile(HANDLE file) { CloseHandle(file); }
using FileOwner = HandleOwner<HANDLE, closeFile>;

std::wstring systemTextOf(DWORD error) {
    wchar_t text[512] = L"";
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                        text, static_cast<DWORD>(std::size(text)), nullptr);
    const std::wstring_view line(text, length);
    return std::wstring(line.substr(0, line.find_last_not_of(L"\r\n ") + 1));
}

/// Whether the drive of a path is there. That of a share is for the errors of the network to tell.
bool hasDrive(const std::wstring& name) {
    if (name.size() < 2 || name[1] != L':') {
        return true;
    }
    const UINT kind = GetDriveTypeW((name.substr(0, 2) + L"\\").c_str());
    return kind != DRIVE_UNKNOWN && kind != DRIVE_NO_ROOT_DIR;
}

[[noreturn]] void fail(FileFailure failure) { throw FileFault{failure, {}}; }

[[noreturn]] void failBySystem(DWORD error, const std::wstring& name) {
    throw FileFault{failureOf(error, name.size(), hasDrive(name)), systemTextOf(error)};
}

void require(BOOL done, const std::wstring& name) {
    if (done == 0) {
        failBySystem(GetLastError(), name);
    }
}

struct Opening {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

HANDLE handleTo(const std::wstring& name, const Opening& opening) {
    return CreateFileW(name.c_str(), opening.access, opening.sharing, nullptr, opening.disposition,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

FileOwner openFile(const std::wstring& name, const Opening& opening) {
    const HANDLE file = handleTo(name, opening);
    require(static_cast<BOOL>(file != INVALID_HANDLE_VALUE), name);
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

class SystemOpenedFile : public OpenedFile {
public:
    explicit SystemOpenedFile(const std::wstring& name)
        : name_(name), file_(openFile(name, {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING})) {}

    std::uint64_t size() override {
        LARGE_INTEGER size{};
        require(GetFileSizeEx(file_.get(), &size), name_);
        return static_cast<std::uint64_t>(size.QuadPart);
    }

    std::size_t read(char* bytes, std::size_t room) override {
        DWORD length = 0;
        require(ReadFile(file_.get(), bytes, static_cast<DWORD>(room), &length, nullptr), name_);
        return length;
    }

private:
    std::wstring name_;
    FileOwner file_;
};

class SystemNewFile : public NewFile {
public:
    /// There is no file yet, so that nothing is left of one where memory runs out.
    explicit SystemNewFile(std::wstring name) : name_(std::move(name)) {}
    ~SystemNewFile() override {
        if (file_) {
            file_.reset();
            DeleteFileW(name_.c_str());
        }
    }

    /// False when the name is taken.
    bool make() {
        const HANDLE file = handleTo(name_, {GENERIC_WRITE | DELETE, FILE_SHARE_READ, CREATE_NEW});
        if (file == INVALID_HANDLE_VALUE) {
            const DWORD error = GetLastError();
            if (error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS) {
                return false;
            }
            failBySystem(error, name_);
        }
        file_ = FileOwner(file);
        setVanishing(true);
        return true;
    }

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            DWORD written = 0;
            require(WriteFile(file_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr), name_);
            bytes.remove_prefix(written);
        }
    }

    void flush() override { require(FlushFileBuffers(file_.get()), name_); }

    void finish() override {
        setVanishing(false);
        file_.reset();
    }

private:
    /// Best effort: not all file systems can do this.
    void setVanishing(bool vanishing) {
        FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(vanishing)};
        SetFileInformationByHandle(file_.get(), FileDispositionInfo, &disposition, sizeof disposition);
    }

    std::wstring name_;
    FileOwner file_;
};

class SystemDisk : public Disk {
public:
    explicit SystemDisk(bool replacesInOneStep) : replacesInOneStep_(replacesInOneStep) {}

    std::wstring target(const std::wstring& given) override {
        const std::wstring name = fullFileName(given);
        const HANDLE file = handleTo(name, {0, shareAll, OPEN_EXISTING});
        if (file == INVALID_HANDLE_VALUE) {
            return name;
        }
        const FileOwner owner(file);
        if (GetFileType(file) != FILE_TYPE_DISK) {
            return name;
        }
        std::wstring path(GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
        const DWORD length =
            GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED);
        path.resize(std::min<std::size_t>(length, path.size()));
        const std::wstring plain = plainPath(path);
        // A short name may stand for a path that is too long.
        return plain.empty() || plain.size() > longestPath ? name : plain;
    }

    std::optional<FileState> find(const std::wstring& name) override {
        if (name.starts_with(L"\\\\.\\")) {
            fail(FileFailure::IsDevice);
        }
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (GetFileAttributesExW(name.c_str(), GetFileExInfoStandard, &data) == 0) {
            const DWORD error = GetLastError();
            if (isAbsence(failureOf(error, name.size(), hasDrive(name)))) {
                return std::nullopt;
            }
            failBySystem(error, name);
        }
        refuseFolder(data.dwFileAttributes);
        const auto whole = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
        return FileState{whole(data.nFileSizeHigh, data.nFileSizeLow),
                         whole(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
    }

    void refuseWhatMayNotBeReplaced(const std::wstring& name) override {
        const DWORD attributes = GetFileAttributesW(name.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES) {
            return;
        }
        // Renaming does not ask whether what it replaces may be written.
        if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            fail(FileFailure::ReadOnly);
        }
        // Who has it open without letting it be deleted does not let it be replaced either; the renaming itself would
        // say no more than that access is denied.
        openFile(name, {GENERIC_WRITE | DELETE, shareAll, OPEN_EXISTING});
    }

    std::unique_ptr<OpenedFile> open(const std::wstring& name) override {
        refuseFolder(GetFileAttributesW(name.c_str()));
        return std::make_unique<SystemOpenedFile>(name);
    }

    std::unique_ptr<NewFile> create(const std::wstring& name) override {
        auto file = std::make_unique<SystemNewFile>(name);
        return file->make() ? std::move(file) : nullptr;
    }

    void replace(const std::wstring& name, const std::wstring& replacement) override {
        copyAttributes(name, replacement);
        if (replacesInOneStep_) {
            rename(replacement, name);
            return;
        }
        // Rights that cannot be taken over are no reason to do without the file.
        constexpr DWORD flags = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
        require(ReplaceFileW(name.c_str(), replacement.c_str(), nullptr, flags, nullptr, nullptr), name);
    }

    void rename(const std::wstring& from, const std::wstring& to) override {
        require(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH), to);
    }

    void keep(const std::wstring& name, const std::wstring& other) override {
        if (CreateHardLinkW(other.c_str(), name.c_str(), nullptr) != 0) {
            return;
        }
        // Some file systems have no links.
        require(CopyFileW(name.c_str(), other.c_str(), TRUE), other);
        require(FlushFileBuffers(openFile(other, {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING}).get()), other);
    }

    void remove(const std::wstring& name) override { DeleteFileW(name.c_str()); }

    void pause() override {
        constexpr DWORD moment = 50;  // milliseconds
        Sleep(moment);
    }

    std::uint32_t random() override { return std::random_device()(); }

private:
    /// Gives a file the attributes and the creation time of another one, also for where only its name can be given to
    /// it. Best effort.
    static void copyAttributes(const std::wstring& from, const std::wstring& to) {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (GetFileAttributesExW(from.c_str(), GetFileExInfoStandard, &data) == 0) {
            return;
        }
        const HANDLE file = handleTo(to, {FILE_WRITE_ATTRIBUTES, shareAll, OPEN_EXISTING});
        if (file != INVALID_HANDLE_VALUE) {
            const FileOwner owner(file);
            SetFileTime(file, &data.ftCreationTime, nullptr, nullptr);
        }
        SetFileAttributesW(to.c_str(), data.dwFileAttributes);
    }

    /// The path as users write it, where all programs can use that.
    static std::wstring plainPath(const std::wstring& path) {
        constexpr std::wstring_view share = L"\\\\?\\UNC\\", local = L"\\\\?\\";
        if (path.starts_with(share)) {
            return L"\\\\" + path.substr(share.size());
        }
        return path.starts_with(local) ? path.substr(local.size()) : path;
    }

    bool replacesInOneStep_;
};

}  // namespace

Disk& systemDisk() {
    // Wine's ReplaceFileW takes over nothing that is not copied here, and first removes the file.
    static SystemDisk disk(isUnderWine());
    return disk;
}

Disk& systemDiskForOwnFiles() {
    static SystemDisk disk(true);
    return disk;
}

bool isUnderWine() {
    static const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return isWine;
}

std::wstring fullFileName(const std::wstring& name) {
    std::wstring whole(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length = GetFullPathNameW(name.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
    whole.resize(std::min<std::size_t>(length, whole.size()));
    return whole.empty() ? name : whole;
}

}  // namespace calquo
