// The order of a save's steps, and the answers to their failures.
#include "workarea/disk_file.h"

#include <algorithm>

#include "workarea/file_fault.h"

namespace calquo {
namespace {

/// A virus scanner or an indexing service may hold a file that has just been closed for a moment.
constexpr bool mayPass(FileFailure failure) {
    return failure == FileFailure::AccessDenied || failure == FileFailure::InUse;
}

/// Carries out an action that fails while another program holds the file; up to five times, with a pause before each
/// further one.
template <typename Action>
void insist(Disk& disk, Action action) {
    constexpr int mostTries = 5;
    for (int tries = 1;; ++tries) {
        try {
            action();
            return;
        } catch (const FileFault& fault) {
            if (!mayPass(fault.failure) || tries == mostTries) {
                throw;
            }
            disk.pause();
        }
    }
}

std::size_t lengthOfFolder(const std::wstring& name) { return name.find_last_of(L"\\/") + 1; }

/// Looks for a name in the folder of `name` that `take` can have, which tells whether it could.
template <typename Take>
std::wstring temporaryNameBeside(Disk& disk, const std::wstring& name, Take take) {
    constexpr int mostTries = 100;
    const std::size_t folder = lengthOfFolder(name);
    const std::size_t room = std::max<std::size_t>(longestPath, folder + 1) - folder;
    for (int tries = 0; tries < mostTries; ++tries) {
        // Not const, so that what is returned is moved: a copy may find no memory, and nobody would remove the file.
        std::wstring temporary = name.substr(0, folder) + temporaryName(disk.random(), room);
        if (take(temporary)) {
            return temporary;
        }
    }
    throw FileFault{FileFailure::InUse, {}};
}

/// A temporary file beside `name` with these bytes, complete on the disk.
std::wstring writeTemporaryFile(Disk& disk, const std::wstring& name, std::string_view bytes) {
    constexpr std::size_t largestPiece = std::size_t{1} << 20;
    return temporaryNameBeside(disk, name, [&](const std::wstring& temporary) {
        const auto file = disk.create(temporary);
        if (file == nullptr) {
            return false;
        }
        for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), largestPiece))) {
            file->write(bytes.substr(0, largestPiece));
        }
        file->flush();
        file->finish();
        return true;
    });
}

/// A second name for a file: `wanted`, or a temporary one while another file has that.
std::wstring secondName(Disk& disk, const std::wstring& name, const std::wstring& wanted) {
    std::wstring second = wanted;  // while there is memory for it
    if (!disk.find(second)) {
        disk.keep(name, second);
        return second;
    }
    return temporaryNameBeside(disk, wanted, [&](const std::wstring& temporary) {
        const bool isFree = !disk.find(temporary);
        if (isFree) {
            disk.keep(name, temporary);
        }
        return isFree;
    });
}

bool stillStands(Disk& disk, const std::wstring& name, const std::optional<FileState>& state) {
    try {
        return disk.find(name) == state;
    } catch (...) {
        return false;
    }
}

void giveName(Disk& disk, const std::wstring& temporary, const std::wstring& name, bool isNew) {
    if (!isNew) {
        try {
            insist(disk, [&] { disk.replace(name, temporary); });
            return;
        } catch (const FileFault&) {
            // Not all file systems can do that; and where it has failed half-way, no file may have the name now.
        }
    }
    insist(disk, [&] { disk.rename(temporary, name); });
}

/// The file of a second name gets the wanted one, if it can.
std::wstring takeFinalName(Disk& disk, std::wstring second, std::wstring wanted) {
    if (second == wanted) {
        return second;
    }
    try {
        insist(disk, [&] { disk.rename(second, wanted); });
        return wanted;
    } catch (const FileFault&) {
        return second;  // the save itself is done, and nothing is lost
    }
}

}  // namespace

std::wstring temporaryName(std::uint32_t random, std::size_t room) {
    constexpr std::wstring_view digits = L"0123456789abcdefghijklmnopqrstuv";
    constexpr unsigned bitsInDigit = 5;
    std::wstring name = L"~";
    for (int count = 0; count < 6; ++count) {
        name += digits[random % digits.size()];
        random >>= bitsInDigit;
    }
    name += temporaryEnding;
    // Without room for the whole name, the random digits alone must keep it apart from others.
    return room < name.size() ? name.substr(1, std::min<std::size_t>(room, 6)) : name;
}

std::string readFile(Disk& disk, const std::wstring& name) {
    const auto file = disk.open(name);
    const std::uint64_t size = file->size();
    if (size > largestFile) {
        throw FileFault{FileFailure::TooLarge, {}};
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t count = file->read(bytes.data() + length, bytes.size() - length);
        if (count == 0) {
            break;
        }
        length += count;
    }
    bytes.resize(length);
    return bytes;
}

std::wstring replaceFile(Disk& disk, const std::wstring& name, std::string_view bytes, const std::wstring& kept) {
    disk.refuseWhatMayNotBeReplaced(name);
    const auto before = disk.find(name);
    std::wstring wanted = kept, second;
    const std::wstring temporary = writeTemporaryFile(disk, name, bytes);
    try {
        if (!kept.empty()) {
            second = secondName(disk, name, kept);
        }
        giveName(disk, temporary, name, !before);
    } catch (...) {
        // A replacement that has failed half-way may have taken the old file away: then these are all there is.
        if (stillStands(disk, name, before)) {
            disk.remove(temporary);
            if (!second.empty()) {
                disk.remove(second);
            }
        }
        throw;
    }
    return takeFinalName(disk, std::move(second), std::move(wanted));
}

}  // namespace calquo
