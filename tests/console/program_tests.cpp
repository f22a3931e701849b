// calq as a process: what it reads, writes and returns, as a shell sees it.
#ifndef _WIN32
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace {

struct Outcome {
    int status;
    std::string output;
};

/// `text` as one word of a shell.
std::string quoted(const std::string& text) {
    std::string word = "'";
    for (const char character : text) {
        word += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return word + "'";
}

/// Runs a command of bash in which $CALQ stands for the program.
Outcome run(const std::string& command) {
    const std::string line = "CALQ=" + quoted(CALQUO_PROGRAM) + " bash -c " + quoted(command);
    std::FILE* pipe = popen(line.c_str(), "r");
    if (pipe == nullptr) {
        return {-1, "bash did not start"};
    }
    std::string output;
    char piece[4096];
    for (std::size_t count; (count = std::fread(piece, 1, sizeof piece, pipe)) > 0;) {
        output.append(piece, count);
    }
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

struct ProgramRow {
    const char* command;
    int status;
    const char* output;
};

void PrintTo(const ProgramRow& row, std::ostream* stream) { *stream << row.command; }

class Program : public testing::TestWithParam<ProgramRow> {};

TEST_P(Program, AnswersAsExpected) {
    const Outcome outcome = run(GetParam().command);
    EXPECT_EQ(outcome.output, GetParam().output);
    EXPECT_EQ(outcome.status, GetParam().status);
}

constexpr ProgramRow rows[] = {
    // One line out for each line in; an error of standard input shows in its answer alone.
    {R"(printf '2+3\n\n=5\n2+ = 7\n 6*7 = \r\n   \n1/4' | $CALQ --position)", 0,
     "5\n\n\nError (invalid format) at 2\n42\nError (invalid format) at 3\n0.25\n"},
    {"$CALQ </dev/null", 0, ""},
    {R"(printf '\n5\n1/0\n' | $CALQ --record)", 0, "\n5\n1/0 = Error (division by zero)\n"},
    // Lines across the pieces that are read at a time, and one longer than several of them.
    {"yes 12+30 | head -n 100000 | $CALQ | uniq -c | tr -s ' '", 0, " 100000 42\n"},
    {"{ head -c 300000 /dev/zero | tr '\\0' ' '; echo 6*7; echo 1; } | $CALQ", 0, "42\n1\n"},
    // Whoever waits for an answer before asking on gets it.
    {"coproc $CALQ; echo 6*7 >&${COPROC[1]}; read -t 10 -u ${COPROC[0]} answer; echo got $answer", 0, "got 42\n"},

    {"$CALQ 1+1 -2^2 '3 = 4'", 0, "2\n4\n3\n"},
    {"$CALQ 1+1 2+", 1, "2\nError (invalid format)\n"},
    {"$CALQ --word 53180000 --format fixed 1/4 -- --5 2>&1", 0, "1/4\n5\n"},
    {"$CALQ $'1+1\\n1+2\\n'", 0, "2\n3\n"},
    {"$CALQ --nonsense 2>&1", 2,
     "calq: there is no option --nonsense; put -- before a line that begins with it\nTry calq --help.\n"},
    {"$CALQ --decimal-mark , 1,500 2>&1", 0,
     "calq: \",\" is the other mark (give both to exchange them); the decimal mark stays \".\"\n1,500\n"},
    {"$CALQ --group-mark _ 1,500 2>&1", 0, "calq: \"_\" has a meaning of its own; the group mark stays \",\"\n1,500\n"},
    {"$CALQ --names | sed -n '1p; /^furlong/p; /^root/p; $p'", 0,
     "abs(x)                  Absolute value (magnitude)\nfurlong                 Furlong\n"
     "root(value; degree)     Root x of a value\nzetta                   1 000 000 000 000 000 000 000\n"},
    {R"(printf '3=3\n = 7\n' | $CALQ --record)", 0, "3=3\n = 7\n"},
    {"$CALQ --decimal-mark , --group-mark . 1.000,5 2>&1", 0, "1.000,5\n"},
    {"$CALQ --version", 0, "Calquo 2.0\n"},
    {"$CALQ --help | head -n 1", 0, "Usage: calq [OPTION...] [LINE...]\n"},
    {"cmp <($CALQ --seed 5 rnd) <($CALQ --seed 5 rnd)", 0, ""},
    {"cmp -s <($CALQ rnd) <(sleep 0.01; $CALQ rnd)", 1, ""},

    {"$CALQ 1+1 2>&1 >/dev/full", 2, "calq: cannot write the answers: No space left on device\n"},
    {"echo 1+1 | $CALQ 2>&1 >/dev/full", 2, "calq: cannot write the answers: No space left on device\n"},
    {"{ echo 6*7; head -c 100000000 /dev/zero; } | $CALQ 2>&1", 2,
     "42\ncalq: a line of standard input is longer than 64 MiB\n"},
    {"$CALQ 2>&1 </", 2, "calq: cannot read standard input: Is a directory\n"},
    {"$CALQ --check /no/such 2>&1", 2, "calq: cannot open /no/such: No such file or directory\n"},

    // On a terminal the mistake is pointed at, below the answer.
    {"script -qec \"$CALQ '12+'\" /dev/null | tr -d '\\r'", 0, "Error (invalid format)\n12+\n   ^\n"},

    {R"(printf '2+3 = 5\n5\n\n2+3 = 6\n=7\n' | $CALQ --check)", 1, "standard input:4: 2+3 = 6 (now 5)\n"},
    // A sheet may hold results of any format.
    {R"(printf '12,34 = 1,234\n1,23456789 = 123,456,790\n1,2 = Error (misplaced group mark)\n' | $CALQ --check)", 0,
     ""},
    {R"(printf '2+ = Error (invalid format)\n2+ = Error (invalid format) at 2\r\n' | $CALQ --check)", 0, ""},
    {R"(printf '2+ = Error (invalid format) at 1\n' | $CALQ --check --position)", 1,
     "standard input:1: 2+ = Error (invalid format) at 1 (now Error (invalid format) at 2)\n"},
    {R"($CALQ --check --format rational <(echo '1/4 = 1/4') <(echo '1/4 = 0.25') | sed 's/.*://')", 0,
     " 1/4 = 0.25 (now 1/4)\n"},
};

INSTANTIATE_TEST_SUITE_P(Shell, Program, testing::ValuesIn(rows));

}  // namespace
#endif
