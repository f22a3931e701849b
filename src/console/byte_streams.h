// Bytes to a file descriptor in large pieces, and files that are open for reading.
#pragma once

#include <cstddef>
#include <string>

namespace calquo {

constexpr int standardInput = 0;
constexpr int standardOutput = 1;
constexpr int standardError = 2;

/// A failed read or write: what was to be done to which file, and the reason.
struct StreamFault {
    std::string message;
};

/// A file that cannot be opened or read; others still may.
struct ReadFault : StreamFault {};

/// A message of the action that has failed, and the system's reason.
std::string systemFault(const std::string& action);

/// Collects bytes and writes them when enough have come together. On a terminal it does so after each line, with
/// control characters made visible.
class OutputStream {
public:
    explicit OutputStream(int file);

    /// What is written next; append to it, then call `lineEnded`.
    std::string& text() { return pending_; }

    [[nodiscard]] bool isTerminal() const { return isTerminal_; }

    /// Writes when it is time to. Throws StreamFault.
    void lineEnded();

    /// Writes what is pending. Throws StreamFault.
    void flush();

private:
    int file_;
    bool isTerminal_;
    std::string pending_;
};

/// Writes a message for the user, who may not see it: a failure to write is nothing that could be told.
void writeMessage(const std::string& text);

/// A file opened for reading, closed with its owner; the standard input for "-".
class InputFile {
public:
    /// Throws ReadFault.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] int descriptor() const { return file_; }
    /// What messages call it.
    [[nodiscard]] const std::string& name() const { return name_; }

private:
    int file_;
    std::string name_;
};

}  // namespace calquo
