// accuracy_table COUNT LINES NAME ANSWERS...: reads the lines of accuracy_lines and the answers of one or more builds,
// holds them against MPFR, and prints a Markdown table of the largest errors in units in the last place.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "functions.h"

namespace {

using namespace calquo;

struct Build {
    std::string name;
    std::ifstream answers;
};

std::string nextLine(std::ifstream& file) {
    std::string line;
    if (!std::getline(file, line)) {
        throw std::runtime_error("a file has fewer lines than there are functions");
    }
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return line;
}

/// Reads a number that is written as "-16'1.8@-3"; digits of the exponent are of base 16 too. Of a complex value,
/// "(re; im)", the real part counts: the other is a residue of rounding.
void read(const std::string& answer, mpfr_ptr number) {
    const std::string text = answer.substr(0, answer.find(';'));
    const std::size_t prefix = text.find("16'");
    if (prefix == std::string::npos) {
        throw std::runtime_error("no number: " + answer);
    }
    const std::size_t mark = text.find('@');
    const std::string digits = text.substr(prefix + 3, mark == std::string::npos ? mark : mark - prefix - 3);
    const long exponent = mark == std::string::npos ? 0 : std::strtol(text.c_str() + mark + 1, nullptr, 16);
    mpfr_set_str(number, (digits + "@" + std::to_string(exponent)).c_str(), 16, MPFR_RNDN);
    if (text.substr(0, prefix).find('-') != std::string::npos) {
        mpfr_neg(number, number, MPFR_RNDN);
    }
}

/// |answer - exact| in units of the last of 64 bits of the exact value.
double errorOf(mpfr_srcptr answer, mpfr_srcptr exact) {
    constexpr mpfr_exp_t mantissaBits = 64, lowestBit = -16445;
    BigFloat difference;
    mpfr_sub(difference.get(), answer, exact, MPFR_RNDN);
    const mpfr_exp_t unit =
        mpfr_zero_p(exact) != 0 ? lowestBit : std::max(mpfr_get_exp(exact) - mantissaBits, lowestBit);
    mpfr_mul_2si(difference.get(), difference.get(), -unit, MPFR_RNDN);
    return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

void printRow(const MeasuredFunction& function, int count, std::ifstream& lines, std::vector<Build>& builds) {
    std::vector<double> worst(builds.size());
    std::vector<std::string> where(builds.size());
    for (int i = 0; i < count; ++i) {
        const std::string line = nextLine(lines);
        const std::size_t open = line.find('(') + 1;
        const std::size_t semicolon = line.find(';');
        const std::size_t close = line.find(')');
        BigFloat x, y, exact;
        read(line.substr(open, std::min(semicolon, close) - open), x.get());
        if (function.hasTwoArguments) {
            read(line.substr(semicolon + 1, close - semicolon - 1), y.get());
        }
        function.exact(exact.get(), x.get(), y.get());
        for (std::size_t build = 0; build < builds.size(); ++build) {
            BigFloat answer;
            read(nextLine(builds[build].answers), answer.get());
            const double error = errorOf(answer.get(), exact.get());
            if (error > worst[build]) {
                worst[build] = error;
                where[build] = line;
            }
        }
    }
    std::printf("| `%s` | %s2^%d to 2^%d |", std::string(function.name).c_str(), function.range.negativeToo ? "±" : "",
                function.range.low, function.range.high);
    for (const double error : worst) {
        std::printf(" %.3f |", error);
    }
    std::printf("\n");
    std::fprintf(stderr, "%s: worst at %s\n", std::string(function.name).c_str(), where.front().c_str());
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 5 || count % 2 == 0) {
        std::fprintf(stderr, "usage: accuracy_table COUNT LINES NAME ANSWERS...\n");
        return 2;
    }
    // Arguments and results as small as denormals, and what compositions need in between.
    mpfr_set_emin(-100000);
    mpfr_set_emax(100000);
    std::ifstream lines(arguments[2]);
    std::vector<Build> builds;
    std::printf("| function | arguments |");
    for (int i = 3; i < count; i += 2) {
        builds.push_back({arguments[i], std::ifstream(arguments[i + 1])});
        std::printf(" %s |", arguments[i]);
    }
    std::printf("\n|---|---|");
    for (std::size_t build = 0; build < builds.size(); ++build) {
        std::printf("---|");
    }
    std::printf("\n");
    try {
        for (const MeasuredFunction& function : measuredFunctions()) {
            printRow(function, static_cast<int>(std::strtol(arguments[1], nullptr, 10)), lines, builds);
        }
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "accuracy_table: %s\n", fault.what());
        return 1;
    }
    return 0;
}
