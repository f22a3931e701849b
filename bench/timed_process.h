// Programs run as whole processes on a given input: how long they take and how much memory.
#pragma once

#include <string>
#include <vector>

namespace calquo::bench {

/// A file for a process's input, deleted with its scope.
class InputFile {
public:
    explicit InputFile(const std::string& text);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
    int descriptor_;
};

/// The seconds from the start of a process to its end, while it reads the file and writes into nothing. Throws when it
/// cannot be started or fails.
double secondsOf(const std::vector<std::string>& command, const InputFile& input);

/// The most memory, in KiB, that was resident in a process that reads `text`, `times` times; it is looked at before its
/// input ends.
long kilobytesOf(const std::vector<std::string>& command, const std::string& text, int times);

}  // namespace calquo::bench
