// The files of Windows: names in UTF-16, and bytes that are not to be changed.
#include <fcntl.h>
#include <io.h>

#include <cerrno>

#include "console/system_files.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {

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
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(file)), &mode) != 0;
}

void keepBytes(int file) { _setmode(file, _O_BINARY); }

bool waitUntilReady(int file, Direction direction) {
    // What the C library makes of an empty or a full pipe that does not block.
    const bool isNotReady = errno == (direction == Direction::Read ? EPIPE : ENOSPC);
    const bool isPipe = GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file))) == FILE_TYPE_PIPE;
    if (!isNotReady || !isPipe || (direction == Direction::Read && GetLastError() != ERROR_NO_DATA)) {
        return false;
    }
    // The system has no way to wait for such a pipe.
    constexpr DWORD milliseconds = 10;
    Sleep(milliseconds);
    return true;
}

}  // namespace calquo
