// The files of Windows: names in UTF-16, and bytes that are not to be changed.
#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>

#include "console/system_files.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

HANDLE handleOf(int file) { return reinterpret_cast<HANDLE>(_get_osfhandle(file)); }

/// A character that is typed has no byte in the code page of the console, or one that stands for another that looks
/// alike.
std::ptrdiff_t readTyped(int file, char* bytes, std::size_t room) {
    constexpr std::size_t mostBytes = 3;  // of one unit
    constexpr wchar_t endOfFile = 0x1A;
    std::wstring units(std::min(room / mostBytes, std::size_t{4096}), L'\0');
    DWORD count = 0;
    if (ReadConsoleW(handleOf(file), units.data(), static_cast<DWORD>(units.size()), &count, nullptr) == 0) {
        errno = EIO;
        return -1;
    }
    const std::wstring_view typed(units.data(), count);
    const std::string text = typed.starts_with(endOfFile) ? std::string() : utf8Text(typed);
    std::ranges::copy(text, bytes);
    return static_cast<std::ptrdiff_t>(text.size());
}

}  // namespace

std::ptrdiff_t readSome(int file, char* bytes, std::size_t room) {
    return isTerminal(file) ? readTyped(file, bytes, room) : _read(file, bytes, static_cast<unsigned>(room));
}

std::ptrdiff_t writeSome(int file, const char* bytes, std::size_t count) {
    if (!isTerminal(file)) {
        return _write(file, bytes, static_cast<unsigned>(count));
    }
    const std::wstring units = wideText({bytes, count});
    DWORD written = 0;
    if (WriteConsoleW(handleOf(file), units.data(), static_cast<DWORD>(units.size()), &written, nullptr) == 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<std::ptrdiff_t>(count);
}

int openForReading(const std::string& path) {
    return _wopen(wideText(path).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

bool isFile(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(wideText(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool isTerminal(int file) {
    // The null device, too, is a device of characters.
    DWORD mode = 0;
    return GetConsoleMode(handleOf(file), &mode) != 0;
}

void keepBytes(int file) { _setmode(file, _O_BINARY); }

bool waitUntilReady(int file, Direction direction) {
    // What the C library makes of an empty or a full pipe that does not block.
    const bool isNotReady = errno == (direction == Direction::Read ? EPIPE : ENOSPC);
    const bool isPipe = GetFileType(handleOf(file)) == FILE_TYPE_PIPE;
    if (!isNotReady || !isPipe || (direction == Direction::Read && GetLastError() != ERROR_NO_DATA)) {
        return false;
    }
    // The system has no way to wait for such a pipe.
    constexpr DWORD milliseconds = 10;
    Sleep(milliseconds);
    return true;
}

}  // namespace calquo
