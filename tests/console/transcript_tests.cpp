// calq as a process: what it reads, writes and returns, as a shell sees it; the rows are in transcripts.txt.
#ifndef _WIN32
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

struct Row {
    std::string command;
    std::string output;
    int status = 0;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.command; }

std::vector<Row> rows() {
    std::vector<Row> all;
    std::ifstream file(CALQUO_TRANSCRIPTS, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("$ ")) {
            all.push_back({line.substr(2), ""});
        } else if (line.starts_with("? ")) {
            all.back().status = std::stoi(line.substr(2));
        } else if (!line.starts_with("#")) {
            all.back().output += line + "\n";
        }
    }
    return all;
}

/// Runs a command of bash, which finds the program as "calq".
Row outcomeOf(const std::string& command) {
    const std::string path = std::filesystem::path(CALQUO_PROGRAM).parent_path().string() + ":" + std::getenv("PATH");
    setenv("PATH", path.c_str(), 1);
    setenv("COMMAND", ("{ " + command + "\n} 2>&1").c_str(), 1);
    std::FILE* pipe = popen("exec bash -c \"$COMMAND\" </dev/null", "r");
    if (pipe == nullptr) {
        return {"bash did not start", ""};
    }
    Row outcome{command, ""};
    char piece[4096];
    for (std::size_t count; (count = std::fread(piece, 1, sizeof piece, pipe)) > 0;) {
        outcome.output.append(piece, count);
    }
    const int status = pclose(pipe);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

class Transcript : public testing::TestWithParam<Row> {};

TEST_P(Transcript, IsWhatAShellSees) {
    const Row outcome = outcomeOf(GetParam().command);
    EXPECT_EQ(outcome.output, GetParam().output);
    EXPECT_EQ(outcome.status, GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(Shell, Transcript, testing::ValuesIn(rows()));

}  // namespace
#endif
