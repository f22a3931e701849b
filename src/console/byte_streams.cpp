// Writing and opening by the descriptors that POSIX systems and Windows both have; see byte_streams.h.
#include "console/byte_streams.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "console/system_files.h"
#include "workarea/visible_text.h"

namespace calquo {
namespace {

constexpr std::size_t pieceSize = 65536;
constexpr char standardInputName[] = "standard input";

}  // namespace

std::string systemFault(const std::string& action) {
    const int reason = errno;
    return action + ": " + std::strerror(reason);
}

OutputStream::OutputStream(int file) : file_(file), isTerminal_(calquo::isTerminal(file)) { keepBytes(file); }

void OutputStream::lineEnded() {
    if (isTerminal_ || pending_.size() >= pieceSize) {
        flush();
    }
}

void OutputStream::flush() {
    if (isTerminal_) {
        pending_ = visibleText(pending_);
    }
    std::size_t written = 0;
    while (written < pending_.size()) {
        const std::size_t count = std::min(pending_.size() - written, pieceSize);
        const std::ptrdiff_t result = writeSome(file_, pending_.data() + written, count);
        if (result >= 0) {
            written += static_cast<std::size_t>(result);
        } else if (!waitUntilReady(file_, Direction::Write)) {
            throw StreamFault{systemFault("cannot write the answers")};
        }
    }
    pending_.clear();
}

void writeMessage(const std::string& text) {
    try {
        OutputStream stream(standardError);
        stream.text() += text;
        stream.flush();
    } catch (const StreamFault&) {
    }
}

InputFile::InputFile(const std::string& path)
    : file_(path == "-" ? standardInput : openForReading(path)), name_(path == "-" ? standardInputName : path) {
    if (file_ < 0) {
        throw ReadFault{{systemFault("cannot open " + path)}};
    }
}

InputFile::~InputFile() {
    if (file_ != standardInput) {
        ::close(file_);
    }
}

}  // namespace calquo
