// peers CALQ MUPARSER_LINES TABLE: times calq and other calculators as whole processes on the same calculations, one
// after the other in each round, and prints ratios: evaluations from text to text, the start for one line, and memory.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace {

struct Peer {
    std::string name;
    std::vector<std::string> command;
    std::size_t column;      ///< Of the table.
    std::string beforehand;  ///< What its input begins with.
    int lines;               ///< So many that a run takes a good part of a second.
};

/// A file for one run's input, deleted with its scope.
class InputFile {
public:
    explicit InputFile(const std::string& text) : path_("/tmp/peers-XXXXXX"), descriptor_(mkstemp(path_.data())) {
        if (descriptor_ < 0 || write(descriptor_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
            throw std::runtime_error("cannot write " + path_);
        }
    }
    ~InputFile() {
        close(descriptor_);
        unlink(path_.c_str());
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
    int descriptor_;
};

/// A process that reads from `input` and writes into nothing.
class Process {
public:
    Process(const std::vector<std::string>& command, int input) {
        std::vector<char*> arguments;
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

double secondsOf(const std::vector<std::string>& command, const std::string& inputFile) {
    const int input = open(inputFile.c_str(), O_RDONLY | O_CLOEXEC);
    const auto begin = std::chrono::steady_clock::now();
    Process(command, input).waitForEnd();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    close(input);
    return taken.count();
}

/// The most memory that a process needs for `text`, `times` times; it is looked at before its input ends.
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

/// The calculations of a column, one after the other until there are enough.
std::string inputOf(const Peer& peer, const std::vector<std::vector<std::string>>& table, int lines) {
    std::string text = peer.beforehand;
    for (int i = 0; i < lines; ++i) {
        text += table[static_cast<std::size_t>(i) % table.size()].at(peer.column) + "\n";
    }
    return text;
}

std::vector<std::vector<std::string>> readTable(const char* path) {
    std::vector<std::vector<std::string>> table;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::vector<std::string> cells;
        std::istringstream row(line);
        for (std::string cell; std::getline(row, cell, '\t');) {
            cells.push_back(cell);
        }
        table.push_back(cells);
    }
    if (table.empty()) {
        throw std::runtime_error(std::string("no calculations in ") + path);
    }
    return table;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Runs each peer's input in turn, round by round, and gives the medians of the seconds for each.
std::vector<double> timeAll(const std::vector<Peer>& peers, const std::vector<InputFile*>& inputs, int rounds) {
    std::vector<std::vector<double>> seconds(peers.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < peers.size(); ++i) {
            seconds[i].push_back(secondsOf(peers[i].command, inputs[i]->path()));
        }
    }
    std::vector<double> medians;
    for (const auto& times : seconds) {
        medians.push_back(median(times));
    }
    return medians;
}

std::vector<double> timeLines(const std::vector<Peer>& peers, const std::vector<std::vector<std::string>>& table,
                              bool onlyOne, int rounds) {
    std::vector<std::unique_ptr<InputFile>> files;
    std::vector<InputFile*> inputs;
    for (const Peer& peer : peers) {
        files.push_back(std::make_unique<InputFile>(inputOf(peer, table, onlyOne ? 1 : peer.lines)));
        inputs.push_back(files.back().get());
    }
    return timeAll(peers, inputs, rounds);
}

void compare(const char* calq, const char* muParserLines, const char* tablePath) {
    const auto table = readTable(tablePath);
    const std::vector<Peer> peers = {
        {"calq", {calq}, 0, "", 400000},
        {"muParser", {muParserLines}, 1, "", 100000},
        {"bc -l", {"bc", "-l"}, 2, "", 20000},
        {"qalc -t", {"qalc", "-t", "-f", "-"}, 3, "", 1000},
    };
    const std::vector<double> one = timeLines(peers, table, true, 31);
    const std::vector<double> many = timeLines(peers, table, false, 5);
    std::printf("\n%-10s %14s %14s %14s\n", "", "lines/second", "times slower", "start, 1 line");
    const double calqRate = peers[0].lines / (many[0] - one[0]);
    for (std::size_t i = 0; i < peers.size(); ++i) {
        const double rate = peers[i].lines / (many[i] - one[i]);
        std::printf("%-10s %14.0f %14.1f %11.1f ms\n", peers[i].name.c_str(), rate, calqRate / rate, one[i] * 1000);
    }
    std::printf("\nmost memory for one line, in KiB:");
    for (const Peer& peer : peers) {
        std::printf(" %s %ld", peer.name.c_str(), kilobytesOf(peer.command, inputOf(peer, table, 1), 1));
    }
    const std::string thousand = inputOf(peers[0], table, 1000);
    std::printf("\ncalq's for 10^5 lines %ld, for 10^7 lines %ld\n", kilobytesOf(peers[0].command, thousand, 100),
                kilobytesOf(peers[0].command, thousand, 10000));
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::fprintf(stderr, "usage: peers CALQ MUPARSER_LINES TABLE\n");
        return 2;
    }
    try {
        compare(arguments[1], arguments[2], arguments[3]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "peers: %s\n", fault.what());
        return 1;
    }
    return 0;
}
