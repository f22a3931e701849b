// What each part of an evaluation takes: reading tokens, literals and the shape of a line, the classes of functions,
// writing numbers, and whole lines of the corpus by group.
#include <benchmark/benchmark.h>

#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "corpus.h"
#include "engine/evaluator.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "engine/number_literal.h"
#include "format/value_writer.h"
#include "workarea/record.h"

namespace calquo {
namespace {

/// Registers a benchmark of `work`, which does something `times` times; the time for one is shown.
void add(const std::string& name, std::size_t times, std::function<void()> work) {
    benchmark::RegisterBenchmark(name.c_str(), [times, work = std::move(work)](benchmark::State& state) {
        for (auto _ : state) {
            work();
        }
        const double done = static_cast<double>(state.iterations()) * static_cast<double>(times);
        state.counters["each"] = benchmark::Counter(done, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    });
}

void addTokens() {
    add("Lexing/names", keywordCount(), [] {
        for (std::size_t keyword = 1; keyword <= keywordCount(); ++keyword) {
            const std::string_view name = nameOf(keyword);
            benchmark::DoNotOptimize(lookup(name.substr(0, nameLength(name, 0))));
        }
    });
    static const std::string operators = "+-*/^**->)";
    add("Lexing/operators", operators.size(), [] {
        for (std::size_t i = 0; i < operators.size(); ++i) {
            benchmark::DoNotOptimize(readOperatorHere(operators, i));
        }
    });
    add("Lexing/signs", operators.size(), [] {
        for (std::size_t i = 0; i < operators.size(); ++i) {
            benchmark::DoNotOptimize(readSign(operators, i, Blanks::Skip));
        }
    });
}

void addLine(const std::string& name, const std::string& line) {
    add(name, 1, [line] { benchmark::DoNotOptimize(evaluateLine(line)); });
}

/// Lines with next to nothing to compute.
void addShapes() {
    addLine("Parsing/number", "1");
    addLine("Parsing/blanks", "   1   +   1   ");
    addLine("Parsing/operators", "1+1*1-1/1^1");
    addLine("Parsing/signs", "-+-+1");
    addLine("Parsing/brackets", "((((((((1))))))))");
    addLine("Parsing/prefix", "neg neg neg neg 1");
    addLine("Parsing/list", "count(1; 1; 1; 1; 1; 1; 1; 1)");
    addLine("Parsing/unit", "1 m");
    addLine("Parsing/conversion", "1 m -> m");
    add("Parsing/error", 1, [answer = Answer()]() mutable { evaluateInto(answer, "1+", defaultFormats[0]); });
}

void addFunctions() {
    for (const char* call : {"sqrt(1.7)",
                             "cbrt(1.7)",
                             "1.7^2.3",
                             "1.7^5",
                             "root(1.7; 5)",
                             "exp(1.7)",
                             "ln(1.7)",
                             "sin(1.7)",
                             "sin(1e1000)",
                             "tan(1.7)",
                             "aSin(0.7)",
                             "aTan(1.7)",
                             "sinH(1.7)",
                             "aSinH(1.7)",
                             "sin(1.7; 0.4)",
                             "ln(1.7; 0.4)",
                             "fact(20)",
                             "round(1.7)",
                             "fraction(1.7)",
                             "mod(17; 5)",
                             "gcd(1071; 462)",
                             "lcm(84; 36; 10)",
                             "prime(1000003)",
                             "prNext(1000000)",
                             "bXor(1071; 462)",
                             "bShift(1071; 4)",
                             "avg(1.5; 2.5; 4)",
                             "median(3; 7; 5)",
                             "sd(2; 4; 4; 5; 7)",
                             "rnd",
                             "rndG",
                             "fv(1000; 10 year; 5%; year)",
                             "pmt(1000; 0; 10 year; 5%; year; year)",
                             "rate(1000; 2000; 10 year; year)"}) {
        addLine(std::string("Functions/") + call, call);
    }
}

void addLiteral(const std::string& name, const std::string& literal) {
    add(name, 1, [literal] {
        Real number = 0;
        benchmark::DoNotOptimize(readNumber(literal, 0, number));
        benchmark::DoNotOptimize(number);
    });
}

void addLiterals() {
    addLiteral("Literals/digit", "7");
    addLiteral("Literals/short", "1234.5678");
    addLiteral("Literals/grouped", "12,345,678.9");
    addLiteral("Literals/twenty", "3.1415926535897932385");
    addLiteral("Literals/fifty", "3.1415926535897932384626433832795028841971693993751");
    addLiteral("Literals/thousand", "0." + std::string(1000, '7'));
    addLiteral("Literals/exponent", "6.62607015e-34");
    addLiteral("Literals/largest", "1.18973149535723176502e4932");
    addLiteral("Literals/smallest", "3.6451995318824746025e-4951");
    for (int base = 2; base <= 36; ++base) {
        addLiteral("Literals/base " + std::to_string(base), std::to_string(base) + "'1011010.1101");
    }
}

void addNumbers() {
    using Limits = std::numeric_limits<Real>;
    static const std::map<std::string, Real> numbers = {{"whole", 1234567},
                                                        {"third", 1 / Real(3)},
                                                        {"small", 1e-7L},
                                                        {"largest", Limits::max()},
                                                        {"smallest", Limits::denorm_min()}};
    for (const FormatKindRow& kind : formatKinds) {
        for (const std::uint32_t base : {10, 2, 16}) {
            for (const auto& [name, number] : numbers) {
                const std::string title =
                    "Writing/" + std::string(kind.optionName) + "/base " + std::to_string(base) + "/" + name;
                add(title, 1, [number = number, word = kind.defaultWord, base, text = std::string()]() mutable {
                    text.clear();
                    appendValue(number, word, base, text);
                    benchmark::DoNotOptimize(text.data());
                });
            }
        }
    }
}

/// From text to text.
void addLines() {
    std::map<std::string, std::vector<std::string>> groups;
    for (const bench::Row& row : bench::corpus()) {
        groups[row.group].push_back(row.calq);
    }
    for (const auto& [group, lines] : groups) {
        add("Lines/" + group, lines.size(), [lines = lines, answer = Answer()]() mutable {
            for (const std::string& line : lines) {
                evaluateInto(answer, expressionOf(line), defaultFormats[0]);
                benchmark::DoNotOptimize(answer.text.data());
            }
        });
    }
}

const bool registered = [] {
    addTokens();
    addShapes();
    addFunctions();
    addLiterals();
    addNumbers();
    addLines();
    return true;
}();

}  // namespace
}  // namespace calquo
