// The files of POSIX systems.
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "console/system_files.h"

namespace calquo {

int openForReading(const std::string& path) { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }

std::ptrdiff_t readSome(int file, char* bytes, std::size_t room) { return ::read(file, bytes, room); }

std::ptrdiff_t writeSome(int file, const char* bytes, std::size_t count) { return ::write(file, bytes, count); }

bool isFile(const std::string& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 && !S_ISDIR(state.st_mode);
}

bool isTerminal(int file) { return ::isatty(file) != 0; }

void keepBytes(int) {}

bool waitUntilReady(int file, Direction direction) {
    if (errno == EINTR) {
        return true;
    }
    if (errno != EAGAIN && errno != EWOULDBLOCK) {
        return false;
    }
    constexpr int forever = -1;
    pollfd ready{file, direction == Direction::Read ? short{POLLIN} : short{POLLOUT}, 0};
    return ::poll(&ready, 1, forever) >= 0 || errno == EINTR;
}

}  // namespace calquo
