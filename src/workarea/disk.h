// What reading and saving ask of the system, as an interface: tests put a disk in its place on which any call can fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace calquo {

/// What a folder says of a file.
struct FileState {
    std::uint64_t size = 0;  ///< In bytes.
    std::uint64_t time = 0;  ///< Of the last write, in the system's units.

    friend bool operator==(const FileState&, const FileState&) = default;
};

/// A file that is being read; nobody can write to it meanwhile.
class OpenedFile {
public:
    OpenedFile() = default;
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    virtual ~OpenedFile() = default;

    virtual std::uint64_t size() = 0;
    /// Reads up to `room` bytes that follow and tells how many they were: 0 at the end.
    virtual std::size_t read(char* bytes, std::size_t room) = 0;
};

/// A file that is being written. It vanishes with this object, and with its program, unless it has been finished.
class NewFile {
public:
    NewFile() = default;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    virtual ~NewFile() = default;

    virtual void write(std::string_view bytes) = 0;
    /// Waits until all that was written is on the disk.
    virtual void flush() = 0;
    virtual void finish() = 0;
};

/// All names but those that `target` is given have their whole paths, and all functions throw FileFault where they
/// cannot do what they say.
class Disk {
public:
    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    virtual ~Disk() = default;

    /// The file that a name leads to, through links, with its whole path; that of the name where there is none yet.
    virtual std::wstring target(const std::wstring& name) = 0;
    /// Nothing where there is no such file. A folder or a device under the name is a fault.
    virtual std::optional<FileState> find(const std::wstring& name) = 0;
    /// Throws when a file of this name may not be replaced, although its folder would let it.
    virtual void refuseWhatMayNotBeReplaced(const std::wstring& name) = 0;

    virtual std::unique_ptr<OpenedFile> open(const std::wstring& name) = 0;
    /// None when the name is taken.
    virtual std::unique_ptr<NewFile> create(const std::wstring& name) = 0;
    /// Puts a file in the place of another one, whose rights, attributes, creation time and streams it takes over, as
    /// far as the disk looks after them.
    virtual void replace(const std::wstring& name, const std::wstring& replacement) = 0;
    /// Gives a file a name, which another file may have had.
    virtual void rename(const std::wstring& from, const std::wstring& to) = 0;
    /// Lets what stands under `name` stand under `other` as well, a name that no file has.
    virtual void keep(const std::wstring& name, const std::wstring& other) = 0;
    /// Best effort.
    virtual void remove(const std::wstring& name) = 0;

    /// Waits for a moment, in which another program may give back what it holds.
    virtual void pause() = 0;
    virtual std::uint32_t random() = 0;
};

/// The system's own.
Disk& systemDisk();
/// The same for files that the program alone makes, and for whose rights and streams nobody cares. A replacement is a
/// single step, so that an end of the program in its middle takes no file away.
Disk& systemDiskForOwnFiles();

/// Whether the system is Wine, whose calls for files and whose control have their own limits.
bool isUnderWine();

/// The name with its whole path, whatever folder is the current one later.
std::wstring fullFileName(const std::wstring& name);

}  // namespace calquo
