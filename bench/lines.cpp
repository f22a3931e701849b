// Typical lines from text to text, beside their bare arithmetic and another calculator's parser in the same run, and
// the hostile ones.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "values/value.h"
#include "workarea/record.h"

namespace calquo {
namespace {

/// A number that the compiler cannot compute with.
Real number(Real x) {
    volatile Real opaque = x;
    return opaque;
}

/// One line in the language, the same in muParser's, and what is left of it when nothing has to be read or written.
struct Row {
    const char* line;
    const char* muParserLine;
    Real (*arithmetic)();
};

const Row rows[] = {
    {"2+3*4", "2+3*4", [] { return number(2) + number(3) * number(4); }},
    {"12.5*4.2-7.75", "12.5*4.2-7.75", [] { return number(12.5L) * number(4.2L) - number(7.75L); }},
    {"1/3", "1/3", [] { return number(1) / number(3); }},
    {"(1.5+2.25)*(3-0.5)", "(1.5+2.25)*(3-0.5)",
     [] { return (number(1.5L) + number(2.25L)) * (number(3) - number(0.5L)); }},
    {"1234567.89*1.21", "1234567.89*1.21", [] { return number(1234567.89L) * number(1.21L); }},
    {"299792458^2", "299792458^2", [] { return std::pow(number(299792458), number(2)); }},
    {"2^0.5", "2^0.5", [] { return std::pow(number(2), number(0.5L)); }},
    {"sqrt(2)", "sqrt(2)", [] { return std::sqrt(number(2)); }},
    {"sin(1.2)*cos(0.4)", "sin(1.2)*cos(0.4)", [] { return std::sin(number(1.2L)) * std::cos(number(0.4L)); }},
    {"ln(10)/ln(2)", "ln(10)/ln(2)", [] { return std::log(number(10)) / std::log(number(2)); }},
    {"exp(-0.5)", "exp(-0.5)", [] { return std::exp(number(-0.5L)); }},
    {"100*(1+0.05)^10", "100*(1+0.05)^10",
     [] { return number(100) * std::pow(number(1) + number(0.05L), number(10)); }},
    {"3.7e-5*6.02e23", "3.7e-5*6.02e23", [] { return number(3.7e-5L) * number(6.02e23L); }},
    {"abs(-7.25)", "abs(-7.25)", [] { return std::fabs(number(-7.25L)); }},
    {"-12+30-4-9+100", "-12+30-4-9+100", [] { return number(-12) + number(30) - number(4) - number(9) + number(100); }},
    {"sum(1; 2; 3; 4)", "sum(1, 2, 3, 4)", [] { return number(1) + number(2) + number(3) + number(4); }},
};

/// Reads the lines from memory and writes the answers into nothing, one stream operation a line each way.
class Streams {
public:
    Streams() {
        for (const Row& row : rows) {
            lines += std::string(row.line) + "\n";
        }
        input = fmemopen(lines.data(), lines.size(), "r");
        output = std::fopen("/dev/null", "w");
    }
    ~Streams() {
        std::fclose(input);
        std::fclose(output);
    }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    std::string_view read() {
        if (std::fgets(buffer, sizeof buffer, input) == nullptr) {
            std::rewind(input);
            return read();
        }
        const std::string_view line(buffer);
        return line.substr(0, line.size() - 1);
    }

    void write(const std::string& text) {
        std::fwrite(text.data(), 1, text.size(), output);
        std::fputc('\n', output);
    }

private:
    std::string lines;
    char buffer[256] = {};
    std::FILE* input;
    std::FILE* output;
};

void countLines(benchmark::State& state) {
    const auto lines = static_cast<double>(state.iterations()) * static_cast<double>(std::size(rows));
    state.counters["line"] = benchmark::Counter(lines, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Floor(benchmark::State& state) {
    Streams streams;
    char digits[64];
    for (auto _ : state) {
        for (const Row& row : rows) {
            benchmark::DoNotOptimize(streams.read());
            std::snprintf(digits, sizeof digits, "%.8Lg", row.arithmetic());
            streams.write(digits);
        }
    }
    countLines(state);
}
BENCHMARK(Floor);

void Calquo(benchmark::State& state) {
    Streams streams;
    Answer answer;
    std::string text;
    for (auto _ : state) {
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            evaluateInto(answer, expressionOf(streams.read()), defaultFormats[0]);
            text.clear();
            appendAnswer(text, answer, ErrorPlace::Hidden);
            streams.write(text);
        }
    }
    countLines(state);
}
BENCHMARK(Calquo);

void MuParser(benchmark::State& state) {
    Streams streams;
    char digits[64];
    mu::Parser parser;
    for (auto _ : state) {
        for (const Row& row : rows) {
            benchmark::DoNotOptimize(streams.read());
            // The same expression as before would be kept; another one is always parsed anew.
            parser.SetExpr(row.muParserLine);
            std::snprintf(digits, sizeof digits, "%.8g", parser.Eval());
            streams.write(digits);
        }
    }
    countLines(state);
}
BENCHMARK(MuParser);

std::string repeated(const char* piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

/// lcm of different odd numbers of 64 bits, evenly spread.
std::string multipleOf(int count) {
    std::string text = "lcm(";
    const std::uint64_t step = (std::uint64_t{1} << 63) / static_cast<std::uint64_t>(count) & ~std::uint64_t{1};
    for (std::uint64_t number = (std::uint64_t{1} << 63) + 1; count != 0; --count, number += step) {
        text += std::to_string(number) + (count == 1 ? ")" : "; ");
    }
    return text;
}

void Hostile(benchmark::State& state, const std::string& line) {
    Answer answer;
    for (auto _ : state) {
        evaluateInto(answer, line, defaultFormats[0]);
        benchmark::DoNotOptimize(answer);
    }
}
BENCHMARK_CAPTURE(Hostile, brackets, repeated("(", 100000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, calls, repeated("sin(", 100000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, powers, repeated("2^", 100000) + "2")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, lists, repeated("sin(", 50) + "1" + repeated(";2)", 50))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, digits, repeated("9", 1000000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, fraction, "0." + repeated("9", 1000000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, halfway, "35'0." + repeated("H", 1000000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, multiple, multipleOf(10000))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Hostile, sums, "1" + repeated("+1", 500000))->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace calquo
