// The slowest calls of the language: every name with hostile arguments, timed once; the slowest ones, timed well.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "engine/keywords.h"
#include "support/hostile_calls.h"
#include "workarea/record.h"

namespace calquo {
namespace {

struct Call {
    std::string line;
    std::chrono::steady_clock::duration time{};
};

std::chrono::steady_clock::duration timeOf(const std::string& line) {
    Answer answer;
    const auto start = std::chrono::steady_clock::now();
    evaluateInto(answer, line, defaultFormats[0]);
    return std::chrono::steady_clock::now() - start;
}

/// The slowest call of each name, the slowest names first.
std::vector<Call> slowestCalls(std::size_t count) {
    std::vector<Call> slowest;
    for (std::size_t keyword = 1; keyword <= keywordCount(); ++keyword) {
        Call worst = {};
        for (std::string& line : hostileCalls(keyword)) {
            const auto time = timeOf(line);
            if (time > worst.time) {
                worst = {std::move(line), time};
            }
        }
        slowest.push_back(std::move(worst));
    }
    std::sort(slowest.begin(), slowest.end(), [](const Call& a, const Call& b) { return a.time > b.time; });
    slowest.resize(count);
    return slowest;
}

const bool registered = [] {
    for (const Call& call : slowestCalls(12)) {
        const std::string name = "Slowest/" + call.line.substr(0, 50) + (call.line.size() > 50 ? "..." : "");
        benchmark::RegisterBenchmark(name.c_str(), [line = call.line](benchmark::State& state) {
            Answer answer;
            for (auto _ : state) {
                evaluateInto(answer, line, defaultFormats[0]);
                benchmark::DoNotOptimize(answer);
            }
        })->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

}  // namespace
}  // namespace calquo
