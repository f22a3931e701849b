// ratios CALQ BARE_LINES MUPARSER_LINES: times calq, the bare arithmetic and other calculators as whole processes on
// the lines of the corpus, one after the other in each round, and prints ratios by group, starts and memory.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "corpus.h"
#include "timed_process.h"

namespace calquo::bench {
namespace {

/// Places in the list of the programs.
enum Place : std::size_t {
    Bare,
    Calq,
    FirstPeer,
};

struct Program {
    std::string name;
    std::vector<std::string> command;
    std::function<std::string(const Row&)> words;  ///< What it reads for a row; empty when it cannot answer.
    std::size_t trialLines;                        ///< Enough to see how long one takes.
};

/// What else runs on the machine can only make a run longer.
double fastest(const std::vector<double>& seconds) { return *std::min_element(seconds.begin(), seconds.end()); }

std::string repeated(const std::string& line, std::size_t times) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i) {
        text += line + "\n";
    }
    return text;
}

class Comparison {
public:
    Comparison(const std::string& calq, const std::string& bareLines, const std::string& muParserLines)
        : programs{{"bare", {bareLines}, [](const Row& row) { return row.calq; }, 20000},
                   {"calq", {calq}, [](const Row& row) { return row.calq; }, 20000},
                   {"muParser", {muParserLines}, [](const Row& row) { return row.muParser; }, 2000},
                   {"bc -l", {"bc", "-l"}, [](const Row& row) { return row.bc; }, 500},
                   {"qalc -t", {"qalc", "-t", "-f", "-"}, [](const Row& row) { return row.qalc; }, 2}} {}

    void print() {
        timeStarts();
        timeRows();
        printGroups();
        printExtremes();
        printStarts();
        printMemory();
    }

private:
    /// The command for a row: the bare arithmetic has to be told which one.
    std::vector<std::string> commandFor(std::size_t program, std::size_t row) const {
        std::vector<std::string> command = programs[program].command;
        if (program == Bare) {
            command.push_back(std::to_string(row));
        }
        return command;
    }

    static double startOf(const std::vector<std::string>& command, const std::string& words) {
        constexpr int rounds = 31;
        const InputFile input(repeated(words, 1));
        std::vector<double> taken;
        taken.reserve(rounds);
        for (int round = 0; round < rounds; ++round) {
            taken.push_back(secondsOf(command, input));
        }
        return fastest(taken);
    }

    void timeStarts() {
        for (std::size_t program = 0; program < programs.size(); ++program) {
            starts.push_back(startOf(commandFor(program, 0), programs[program].words(rows.front())));
        }
    }

    /// For all lines but one, which the start takes along.
    double secondsWithoutStart(std::size_t program, std::size_t row, std::size_t lines) const {
        const InputFile input(repeated(programs[program].words(rows[row]), lines));
        return secondsOf(commandFor(program, row), input) - starts[program];
    }

    /// So many lines that a run takes about a tenth of a second.
    std::size_t linesFor(std::size_t program, std::size_t row) const {
        constexpr double enough = 0.1;
        constexpr double most = 50;
        const std::size_t trial = programs[program].trialLines;
        const double taken = secondsWithoutStart(program, row, trial);
        const double times = taken <= enough / most ? most : enough / taken;
        return std::max(trial, static_cast<std::size_t>(times * static_cast<double>(trial)));
    }

    /// Fills `seconds`: for each row and program the time for a line, without the start; 0 where there is none.
    void timeRows() {
        constexpr int rounds = 5;
        seconds.assign(rows.size(), std::vector<double>(programs.size()));
        for (std::size_t row = 0; row < rows.size(); ++row) {
            std::vector<std::size_t> lines(programs.size());
            for (std::size_t program = 0; program < programs.size(); ++program) {
                lines[program] = programs[program].words(rows[row]).empty() ? 0 : linesFor(program, row);
            }
            std::vector<std::vector<double>> taken(programs.size());
            for (int round = 0; round < rounds; ++round) {
                for (std::size_t program = 0; program < programs.size(); ++program) {
                    if (lines[program] != 0) {
                        taken[program].push_back(secondsWithoutStart(program, row, lines[program]) /
                                                 static_cast<double>(lines[program] - 1));
                    }
                }
            }
            std::transform(taken.begin(), taken.end(), seconds[row].begin(),
                           [](const std::vector<double>& times) { return times.empty() ? 0 : fastest(times); });
        }
    }

    /// How much longer `program` takes than `other` for those of the rows from `first` to `last` that both answer; 0
    /// when there are none.
    double ratio(std::size_t program, std::size_t other, std::size_t first, std::size_t last) const {
        double mine = 0;
        double others = 0;
        for (std::size_t row = first; row < last; ++row) {
            if (seconds[row][program] != 0) {
                mine += seconds[row][program];
                others += seconds[row][other];
            }
        }
        return others == 0 ? 0 : mine / others;
    }

    void printRow(const char* title, std::size_t first, std::size_t last) const {
        double bare = 0;
        for (std::size_t row = first; row < last; ++row) {
            bare += seconds[row][Bare];
        }
        std::printf("| %-10s | %7.0f ns | %9.2f |", title, bare / static_cast<double>(last - first) * 1e9,
                    ratio(Calq, Bare, first, last));
        for (std::size_t program = FirstPeer; program < programs.size(); ++program) {
            if (const double slower = ratio(program, Calq, first, last); slower != 0) {
                std::printf(" %8.1f |", slower);
            } else {
                std::printf(" %8s |", "");
            }
        }
        std::printf("\n");
    }

    void printGroups() const {
        std::printf("| %-10s | %10s | %9s |", "lines", "bare line", "calq/bare");
        for (std::size_t program = FirstPeer; program < programs.size(); ++program) {
            std::printf(" %8s |", programs[program].name.c_str());
        }
        std::printf("\n|---|---|---|---|---|---|\n");
        for (std::size_t first = 0; first < rows.size();) {
            std::size_t last = first + 1;
            while (last < rows.size() && std::strcmp(rows[last].group, rows[first].group) == 0) {
                ++last;
            }
            printRow(rows[first].group, first, last);
            first = last;
        }
        printRow("all", 0, rows.size());
    }

    void printExtremes() const {
        std::size_t dearest = 0;
        for (std::size_t row = 1; row < rows.size(); ++row) {
            if (ratio(Calq, Bare, row, row + 1) > ratio(Calq, Bare, dearest, dearest + 1)) {
                dearest = row;
            }
        }
        std::printf("\ndearest line: %s, %.2f times bare\n", rows[dearest].calq,
                    ratio(Calq, Bare, dearest, dearest + 1));
        std::printf("smallest lead of calq:");
        for (std::size_t program = FirstPeer; program < programs.size(); ++program) {
            double least = 0;
            const char* line = "";
            for (std::size_t row = 0; row < rows.size(); ++row) {
                const double lead = ratio(program, Calq, row, row + 1);
                if (lead != 0 && (least == 0 || lead < least)) {
                    least = lead;
                    line = rows[row].calq;
                }
            }
            std::printf("%s %s %.1f times (%s)", program == FirstPeer ? "" : ",", programs[program].name.c_str(), least,
                        line);
        }
        std::printf("\n");
    }

    /// bc starts faster without its library.
    void printStarts() const {
        std::printf("one process for one line:");
        for (std::size_t program = 0; program < programs.size(); ++program) {
            std::printf(" %s %.2f ms,", programs[program].name.c_str(), starts[program] * 1000);
        }
        std::printf(" bc %.2f ms\n", startOf({"bc"}, rows.front().bc) * 1000);
    }

    void printMemory() const {
        std::printf("most memory for one line, in KiB:");
        for (std::size_t program = 0; program < programs.size(); ++program) {
            std::printf(" %s %ld,", programs[program].name.c_str(),
                        kilobytesOf(commandFor(program, 0), repeated(programs[program].words(rows.front()), 1), 1));
        }
        std::printf(" bc %ld", kilobytesOf({"bc"}, repeated(rows.front().bc, 1), 1));
        std::string lines;
        for (const Row& row : rows) {
            lines += std::string(row.calq) + "\n";
        }
        std::printf("\ncalq's for a thousand of all lines %ld, for ten million lines %ld\n",
                    kilobytesOf(programs[Calq].command, lines, static_cast<int>(1000 / rows.size() + 1)),
                    kilobytesOf(programs[Calq].command, lines, static_cast<int>(10000000 / rows.size() + 1)));
    }

    std::span<const Row> rows = corpus();
    std::vector<Program> programs;
    std::vector<double> starts;
    std::vector<std::vector<double>> seconds;
};

}  // namespace
}  // namespace calquo::bench

int main(int count, char** arguments) {
    if (count != 4) {
        std::fprintf(stderr, "usage: ratios CALQ BARE_LINES MUPARSER_LINES\n");
        return 2;
    }
    try {
        calquo::bench::Comparison(arguments[1], arguments[2], arguments[3]).print();
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "ratios: %s\n", fault.what());
        return 1;
    }
    return 0;
}
