// accuracy_table TABLE COUNT LINES [NAME ANSWERS]...: holds the answers of one or more builds to the lines of
// accuracy_lines COUNT against exact values, and prints one of the Markdown tables: functions,
// cancelling, literals or formats.
// LINES and ANSWERS are folders.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats.h"
#include "functions.h"
#include "questions.h"
#include "support/lossless.h"
#include "support/numeral.h"
#include "support/written_fraction.h"
#include "support/written_number.h"

namespace {

using namespace calquo;

struct Build {
    std::string name;
    std::filesystem::path answers;
};

/// What a table is made from.
struct Sources {
    int count;
    std::filesystem::path lines;
    std::vector<Build> builds;
};

/// The lines of one file, with what each build answers.
class Questions {
public:
    Questions(const Sources& sources, const std::string& file) : lines_(sources.lines / file) {
        for (const Build& build : sources.builds) {
            files_.emplace_back(build.answers / file);
        }
        answers.resize(files_.size());
    }

    /// The next line; false when there are no more.
    bool next() {
        if (!std::getline(lines_, line)) {
            return false;
        }
        for (std::size_t build = 0; build < answers.size(); ++build) {
            if (!std::getline(files_[build], answers[build])) {
                throw std::runtime_error("no answer to " + line);
            }
            if (answers[build].ends_with('\r')) {
                answers[build].pop_back();
            }
        }
        return true;
    }

    std::string line;
    std::vector<std::string> answers;

private:
    std::ifstream lines_;
    std::vector<std::ifstream> files_;
};

void printHeading(const std::string& columns, const Sources& sources) {
    std::string heading = "| " + columns + " |";
    for (const Build& build : sources.builds) {
        heading += " " + build.name + " |";
    }
    std::printf("%s\n|", heading.c_str());
    for (auto bars = std::count(heading.begin(), heading.end(), '|'); bars > 1; --bars) {
        std::printf("---|");
    }
    std::printf("\n");
}

/// |answer - exact| in units of the last of 64 bits of the exact value; infinite where either is no number.
double errorOf(mpfr_srcptr answer, mpfr_srcptr exact) {
    constexpr mpfr_exp_t mantissaBits = 64, lowestBit = ExtendedBits::smallestExponent;
    BigFloat difference;
    mpfr_sub(difference.get(), answer, exact, MPFR_RNDN);
    const mpfr_exp_t unit =
        mpfr_zero_p(exact) != 0 ? lowestBit : std::max(mpfr_get_exp(exact) - mantissaBits, lowestBit);
    mpfr_mul_2si(difference.get(), difference.get(), -unit, MPFR_RNDN);
    constexpr double infinite = std::numeric_limits<double>::infinity();
    return mpfr_nan_p(difference.get()) != 0 ? infinite : std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

/// Of a complex value, "(re; im)", the real part counts: the other is a residue of rounding. Throws std::runtime_error
/// when it is more than that.
void readAnswer(const std::string& answer, mpfr_ptr number) {
    if (!answer.starts_with('(')) {
        setTo(number, numeralFrom(answer));
        return;
    }
    constexpr double largestResidue = 0x1p-62;
    const std::size_t separator = answer.find("; ");
    if (separator == std::string::npos || !answer.ends_with(')')) {
        throw std::runtime_error("no value: " + answer);
    }
    BigFloat residue;
    setTo(residue.get(), numeralFrom(answer.substr(separator + 2, answer.size() - separator - 3)));
    if (std::fabs(mpfr_get_d(residue.get(), MPFR_RNDA)) > largestResidue) {
        throw std::runtime_error("not real: " + answer);
    }
    setTo(number, numeralFrom(answer.substr(1, separator - 1)));
}

/// The answers of one build in one range of a function.
struct AnswersInRange {
    int messages = 0;         ///< Instead of a value.
    double largestError = 0;  ///< Of all values.
};

std::string textOf(const Range& range) {
    std::string text = range.offset != 0 ? std::to_string(range.offset) + " + " : "";
    text += range.sign == Sign::Either ? "±" : range.sign == Sign::Negative ? "-" : "";
    const std::string sign = range.sign == Sign::Negative ? "-" : "";
    return text + "2^" + std::to_string(range.low) + " to " + sign + "2^" + std::to_string(range.high);
}

/// How the next questions, which are those for a function, are answered.
std::vector<AnswersInRange> answersInRange(const MeasuredFunction& function, Questions& questions,
                                           const Sources& sources) {
    std::vector<AnswersInRange> answers(sources.builds.size());
    std::string where;
    for (int i = 0; i < sources.count; ++i) {
        if (!questions.next()) {
            throw std::runtime_error("there are fewer lines than functions to ask for");
        }
        const std::string& line = questions.line;
        const std::size_t open = line.find('(') + 1;
        const std::size_t semicolon = line.find(';');
        const std::size_t close = line.find(')');
        BigFloat x, y, exact;
        setTo(x.get(), numeralFrom(line.substr(open, std::min(semicolon, close) - open)));
        if (function.hasTwoArguments) {
            setTo(y.get(), numeralFrom(line.substr(semicolon + 2, close - semicolon - 2)));
        }
        function.exact(exact.get(), x.get(), y.get());
        for (std::size_t build = 0; build < answers.size(); ++build) {
            if (questions.answers[build].starts_with("Error ")) {
                ++answers[build].messages;
                continue;
            }
            BigFloat answer;
            readAnswer(questions.answers[build], answer.get());
            const double error = errorOf(answer.get(), exact.get());
            if (error > answers[build].largestError) {
                answers[build].largestError = error;
                where = line;
            }
        }
    }
    std::fprintf(stderr, "%s: worst at %s\n", std::string(function.name).c_str(), where.c_str());
    return answers;
}

void printStartOfRow(const MeasuredFunction& function) {
    std::printf("| `%s` | %s |", std::string(function.name).c_str(), textOf(function.range).c_str());
}

void printFunctions(const Sources& sources) {
    printHeading("function | arguments", sources);
    Questions questions(sources, fileName(functionsName, losslessWord));
    for (const MeasuredFunction& function : measuredFunctions()) {
        printStartOfRow(function);
        for (const AnswersInRange& answers : answersInRange(function, questions, sources)) {
            if (answers.messages != 0) {
                throw std::runtime_error("no value of " + std::string(function.name));
            }
            std::printf(" %.3f |", answers.largestError);
        }
        std::printf("\n");
    }
}

void printCancelling(const Sources& sources) {
    printHeading("function | arguments", sources);
    Questions questions(sources, fileName(cancellingName, losslessWord));
    for (const MeasuredFunction& function : cancellingFunctions()) {
        printStartOfRow(function);
        for (const AnswersInRange& answers : answersInRange(function, questions, sources)) {
            std::printf(" %d, %.2g |", answers.messages, answers.largestError);
        }
        std::printf("\n");
    }
}

/// The answers of one build in a row of a table.
struct AnswersOfRow {
    int count = 0;
    int wrong = 0;
    double largestError = 0;  ///< Of all answers, wrong or not.
};

/// The rows of a table that has one for each of the everyday bases and one for all others.
class RowsOfBases {
public:
    explicit RowsOfBases(const Sources& sources) : fewest_(sources.count) {
        rows_.fill(std::vector<AnswersOfRow>(sources.builds.size()));
    }

    void add(std::uint32_t base, std::size_t build, const WrittenError& error, const Questions& questions) {
        AnswersOfRow& answers = rows_[rowOfBase(base)][build];
        ++answers.count;
        answers.largestError = std::max(answers.largestError, error.units);
        if (error.isWrong) {
            ++answers.wrong;
            std::fprintf(stderr, "wrong: %s = %s\n", questions.line.c_str(), questions.answers[build].c_str());
        }
    }

    void print(const std::string& firstColumn, bool hasErrors) const {
        for (std::size_t row = 0; row < baseRows; ++row) {
            const std::string base = row < std::size(everydayBases) ? std::to_string(everydayBases[row]) : "others";
            std::printf("| %s%s |", firstColumn.c_str(), base.c_str());
            for (const AnswersOfRow& answers : rows_[row]) {
                if (answers.count < fewest_) {
                    throw std::runtime_error("there are fewer lines than asked for");
                }
                std::printf(" %d", answers.wrong);
                if (hasErrors) {
                    std::printf(", %.3f", answers.largestError);
                }
                std::printf(" |");
            }
            std::printf("\n");
        }
    }

private:
    int fewest_;
    std::array<std::vector<AnswersOfRow>, baseRows> rows_;
};

void printLiterals(const Sources& sources) {
    printHeading("base", sources);
    RowsOfBases rows(sources);
    Questions questions(sources, fileName(literalsName, losslessWord));
    while (questions.next()) {
        const Numeral literal = numeralFrom(questions.line.substr(0, questions.line.find(' ')));
        BigFloat exact, nearest, answer;
        setTo(exact.get(), literal);
        mpfr_set_ld(nearest.get(), nearestReal(literal), MPFR_RNDN);
        for (std::size_t build = 0; build < sources.builds.size(); ++build) {
            readAnswer(questions.answers[build], answer.get());
            const bool isWrong = mpfr_equal_p(answer.get(), nearest.get()) == 0;
            rows.add(literal.base, build, {isWrong, errorOf(answer.get(), exact.get())}, questions);
        }
    }
    rows.print("", true);
}

void addNumbers(const CheckedFormat& format, NumericFormat word, const Sources& sources, RowsOfBases& rows) {
    Questions questions(sources, fileName(format.name(), word));
    while (questions.next()) {
        // "NUMBER 'BASE"
        const std::size_t blank = questions.line.find(' ');
        const auto base = static_cast<std::uint32_t>(std::stoul(questions.line.substr(blank + 2)));
        BigFloat x;
        setTo(x.get(), numeralFrom(questions.line.substr(0, blank)));
        for (std::size_t build = 0; build < sources.builds.size(); ++build) {
            const std::string& text = questions.answers[build];
            const WrittenError error = format.writesFractions()
                                           ? WrittenError{!isClosestFraction(text, x.get(), word, base), 0}
                                           : errorOfWritten(text, x.get(), word, base);
            rows.add(base, build, error, questions);
        }
    }
}

void printFormats(const Sources& sources) {
    printHeading("format | base", sources);
    for (const CheckedFormat& format : checkedFormats()) {
        RowsOfBases rows(sources);
        for (const NumericFormat word : format.words) {
            addNumbers(format, word, sources, rows);
        }
        rows.print(std::string(format.name()) + " | ", !format.writesFractions());
    }
}

struct Table {
    std::string_view name;
    void (*print)(const Sources&);
};

constexpr Table tables[] = {{"functions", printFunctions},
                            {"cancelling", printCancelling},
                            {"literals", printLiterals},
                            {"formats", printFormats}};

}  // namespace

int main(int count, char** arguments) {
    const auto* const table = std::find_if(std::begin(tables), std::end(tables),
                                           [&](const Table& row) { return count > 1 && row.name == arguments[1]; });
    if (count < 6 || count % 2 != 0 || table == std::end(tables)) {
        std::fprintf(stderr,
                     "usage: accuracy_table functions|cancelling|literals|formats COUNT LINES NAME ANSWERS...\n");
        return 2;
    }
    Sources sources{static_cast<int>(std::strtol(arguments[2], nullptr, 10)), arguments[3], {}};
    for (int i = 4; i < count; i += 2) {
        sources.builds.push_back({arguments[i], arguments[i + 1]});
    }
    try {
        table->print(sources);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "accuracy_table: %s\n", fault.what());
        return 1;
    }
    return 0;
}
