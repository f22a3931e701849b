// Lines from a file descriptor and bytes to one, in large pieces and unchanged on every system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

constexpr int standardInput = 0;
constexpr int standardOutput = 1;
constexpr int standardError = 2;

/// A failed read or write: what was to be done to which file, and the system's reason.
struct StreamFault {
    std::string message;
};

bool isTerminal(int file);

/// Collects bytes and writes them when enough have come together; at once after each line on a terminal.
class OutputStream {
public:
    explicit OutputStream(int file);

    /// What is written next; append to it, then call `lineEnded`.
    std::string& text() { return pending_; }

    /// Writes when it is time to. Throws StreamFault.
    void lineEnded();

    /// Writes what is pending. Throws StreamFault.
    void flush();

private:
    int file_;
    std::size_t enough_;
    std::string pending_;
};

/// The lines of a file. Memory grows to the longest line, of at most 64 MiB, and no further.
class LineReader {
public:
    /// Reads from `file`, called `name` in messages. Flushes `output` before it waits for more, so that whoever sends
    /// lines one by one gets each answer before the next line is asked for.
    LineReader(int file, std::string name, OutputStream& output);

    /// The next line without its line end ("\n" or "\r\n"), valid until the next call; false when there are no more.
    /// Throws StreamFault, also for a line that is too long.
    bool next(std::string_view& line);

private:
    bool readMore();

    int file_;
    std::string name_;
    OutputStream& output_;
    std::vector<char> buffer_;
    std::size_t start_ = 0;  // of what has been read and not yet given out
    std::size_t end_ = 0;    // of what has been read
};

/// A file opened for reading, closed with its owner.
class InputFile {
public:
    /// Throws StreamFault.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    int descriptor() const { return file_; }

private:
    int file_;
};

}  // namespace calquo
