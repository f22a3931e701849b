// Starts a process, feeds it, and reads the times and the memory that the system has counted for it.
#include "timed_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

extern char** environ;

namespace calquo::bench {
namespace {

/// A process that reads from `input` and writes into nothing.
class Process {
public:
    Process(const std::vector<std::string>& command, int input) {
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (const std::string& word : command) {
            arguments.push_back(const_cast<char*>(word.c_str()));
        }
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        const int failure = posix_spawnp(&identifier_, arguments.front(), &files, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&files);
        if (failure != 0) {
            throw std::runtime_error("cannot start " + command.front());
        }
    }

    /// The most memory that was resident so far, in KiB.
    long peakKilobytes() const {
        std::ifstream status("/proc/" + std::to_string(identifier_) + "/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmHWM:")) {
                return std::strtol(line.c_str() + 6, nullptr, 10);
            }
        }
        throw std::runtime_error("a process ended early");
    }

    void waitForEnd() const {
        int status = 0;
        if (waitpid(identifier_, &status, 0) < 0 || status != 0) {
            throw std::runtime_error("a process failed");
        }
    }

private:
    pid_t identifier_ = 0;
};

}  // namespace

InputFile::InputFile(const std::string& text) : path_("/tmp/bench-XXXXXX"), descriptor_(mkstemp(path_.data())) {
    if (descriptor_ < 0 || write(descriptor_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        throw std::runtime_error("cannot write " + path_);
    }
}

InputFile::~InputFile() {
    close(descriptor_);
    unlink(path_.c_str());
}

double secondsOf(const std::vector<std::string>& command, const InputFile& file) {
    const int input = open(file.path().c_str(), O_RDONLY | O_CLOEXEC);
    const auto begin = std::chrono::steady_clock::now();
    Process(command, input).waitForEnd();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    close(input);
    return taken.count();
}

long kilobytesOf(const std::vector<std::string>& command, const std::string& text, int times) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    const Process process(command, ends[0]);
    close(ends[0]);
    for (int i = 0; i < times; ++i) {
        if (write(ends[1], text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
            throw std::runtime_error(command.front() + " does not read");
        }
    }
    constexpr useconds_t timeForTheRest = 500000;
    usleep(timeForTheRest);
    const long peak = process.peakKilobytes();
    close(ends[1]);
    process.waitForEnd();
    return peak;
}

}  // namespace calquo::bench
