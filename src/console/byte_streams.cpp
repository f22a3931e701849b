// Reading and writing through the file descriptors that POSIX systems and Windows both have; see byte_streams.h.
#include "console/byte_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace calquo {
namespace {

constexpr std::size_t pieceSize = 65536;

/// A file without line ends, such as a device, must not take all memory.
constexpr std::size_t longestLine = std::size_t{64} << 20;

[[noreturn]] void fail(const std::string& action) {
    const int reason = errno;
    throw StreamFault{action + ": " + std::strerror(reason)};
}

/// Keeps Windows from turning line ends into "\r\n" and from ending a file at a control-Z.
void keepBytes([[maybe_unused]] int file) {
#ifdef _WIN32
    _setmode(file, _O_BINARY);
#endif
}

}  // namespace

bool isTerminal(int file) { return ::isatty(file) != 0; }

OutputStream::OutputStream(int outputFile) : file(outputFile), enough(isTerminal(outputFile) ? 0 : pieceSize) {
    keepBytes(file);
}

void OutputStream::lineEnded() {
    if (pending.size() >= enough) {
        flush();
    }
}

void OutputStream::flush() {
    std::size_t written = 0;
    while (written < pending.size()) {
        const std::size_t count = std::min(pending.size() - written, pieceSize);
        const auto result = ::write(file, pending.data() + written, static_cast<unsigned>(count));
        if (result < 0 && errno != EINTR) {
            fail("cannot write the answers");
        }
        if (result > 0) {
            written += static_cast<std::size_t>(result);
        }
    }
    pending.clear();
}

LineReader::LineReader(int inputFile, std::string nameInMessages, OutputStream& flushedBeforeWaiting)
    : file(inputFile), name(std::move(nameInMessages)), output(flushedBeforeWaiting), buffer(pieceSize) {
    keepBytes(file);
}

bool LineReader::readMore() {
    if (start > 0) {
        std::memmove(buffer.data(), buffer.data() + start, end - start);
        end -= start;
        start = 0;
    }
    if (end == buffer.size()) {
        if (buffer.size() >= longestLine) {
            throw StreamFault{"a line of " + name + " is longer than 64 MiB"};
        }
        buffer.resize(2 * buffer.size());
    }
    output.flush();
    for (;;) {
        const std::size_t room = std::min(buffer.size() - end, pieceSize);
        const auto result = ::read(file, buffer.data() + end, static_cast<unsigned>(room));
        if (result < 0 && errno == EINTR) {
            continue;
        }
        if (result < 0) {
            fail("cannot read " + name);
        }
        end += static_cast<std::size_t>(result);
        return result > 0;
    }
}

bool LineReader::next(std::string_view& line) {
    std::size_t length = 0;
    const char* lineEnd = nullptr;
    for (;;) {
        const char* from = buffer.data() + start + length;
        lineEnd = static_cast<const char*>(std::memchr(from, '\n', end - start - length));
        if (lineEnd != nullptr) {
            break;
        }
        length = end - start;
        if (!readMore()) {
            break;
        }
    }
    if (lineEnd == nullptr && length == 0) {
        return false;
    }
    const char* lineStart = buffer.data() + start;
    if (lineEnd != nullptr) {
        length = static_cast<std::size_t>(lineEnd - lineStart);
    }
    start += length + (lineEnd != nullptr ? 1 : 0);
    if (length > 0 && lineStart[length - 1] == '\r') {
        --length;
    }
    line = std::string_view(lineStart, length);
    return true;
}

InputFile::InputFile(const std::string& path) : file(::open(path.c_str(), O_RDONLY)) {
    if (file < 0) {
        fail("cannot open " + path);
    }
}

InputFile::~InputFile() { ::close(file); }

}  // namespace calquo
