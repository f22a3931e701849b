// Lines made to take long, from text to text.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "workarea/record.h"

namespace calquo {
namespace {

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
