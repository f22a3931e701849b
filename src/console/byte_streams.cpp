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

OutputStream::OutputStream(int file) : file_(file), enough_(isTerminal(file) ? 0 : pieceSize) { keepBytes(file); }

void OutputStream::lineEnded() {
    if (pending_.size() >= enough_) {
        flush();
    }
}

void OutputStream::flush() {
    std::size_t written = 0;
    while (written < pending_.size()) {
        const std::size_t count = std::min(pending_.size() - written, pieceSize);
        const auto result = ::write(file_, pending_.data() + written, static_cast<unsigned>(count));
        if (result < 0 && errno != EINTR) {
            fail("cannot write the answers");
        }
        if (result > 0) {
            written += static_cast<std::size_t>(result);
        }
    }
    pending_.clear();
}

LineReader::LineReader(int file, std::string name, OutputStream& output)
    : file_(file), name_(std::move(name)), output_(output), buffer_(pieceSize) {
    keepBytes(file);
}

bool LineReader::readMore() {
    if (start_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
        end_ -= start_;
        start_ = 0;
    }
    if (end_ == buffer_.size()) {
        if (buffer_.size() >= longestLine) {
            throw StreamFault{"a line of " + name_ + " is longer than 64 MiB"};
        }
        buffer_.resize(2 * buffer_.size());
    }
    output_.flush();
    for (;;) {
        const std::size_t room = std::min(buffer_.size() - end_, pieceSize);
        const auto result = ::read(file_, buffer_.data() + end_, static_cast<unsigned>(room));
        if (result < 0 && errno == EINTR) {
            continue;
        }
        if (result < 0) {
            fail("cannot read " + name_);
        }
        end_ += static_cast<std::size_t>(result);
        return result > 0;
    }
}

bool LineReader::next(std::string_view& line) {
    std::size_t length = 0;
    const char* lineEnd = nullptr;
    for (;;) {
        const char* from = buffer_.data() + start_ + length;
        lineEnd = static_cast<const char*>(std::memchr(from, '\n', end_ - start_ - length));
        if (lineEnd != nullptr) {
            break;
        }
        length = end_ - start_;
        if (!readMore()) {
            break;
        }
    }
    if (lineEnd == nullptr && length == 0) {
        return false;
    }
    const char* lineStart = buffer_.data() + start_;
    if (lineEnd != nullptr) {
        length = static_cast<std::size_t>(lineEnd - lineStart);
    }
    start_ += length + (lineEnd != nullptr ? 1 : 0);
    if (length > 0 && lineStart[length - 1] == '\r') {
        --length;
    }
    line = std::string_view(lineStart, length);
    return true;
}

InputFile::InputFile(const std::string& path) : file_(::open(path.c_str(), O_RDONLY)) {
    if (file_ < 0) {
        fail("cannot open " + path);
    }
}

InputFile::~InputFile() { ::close(file_); }

}  // namespace calquo
