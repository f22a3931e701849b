// The table of functions: the largest error of each row, the answers of a wrong kind, and an argument that shows it.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>
#include <variant>

#include "builds.h"
#include "engine/keywords.h"
#include "engine/lexer.h"
#include "functions.h"
#include "lossless.h"
#include "numeral.h"

namespace calquo {
namespace {

constexpr mpfr_prec_t mantissaBits = 64;
constexpr std::size_t longestList = 5;

struct Question {
    std::vector<std::complex<Real>> arguments;
    std::string line;
};

Question questionFor(const MeasuredFunction& function, RandomReals& random) {
    Question question;
    const std::size_t dots = function.line.find("...");
    const bool isList = dots != std::string::npos;
    const std::size_t count =
        isList ? static_cast<std::size_t>(random.between(1, longestList)) : function.regions.size();
    for (std::size_t i = 0; i < count; ++i) {
        question.arguments.push_back(function.regions[isList ? 0 : i].pick(random));
    }
    if (function.adjust) {
        function.adjust(question.arguments);
    }
    auto argument = question.arguments.begin();
    for (std::size_t i = 0; i < function.line.size(); ++i) {
        if (function.line[i] == '#') {
            question.line += exactly(*argument++);
        } else if (i == dots) {
            for (; argument != question.arguments.end(); ++argument) {
                question.line += "; " + exactly(*argument);
            }
            i += 2;
        } else {
            question.line += function.line[i];
        }
    }
    return question;
}

/// What stands on the page: a value, or the error that the formula ends in.
using Expected = std::variant<Exact, ErrorCode>;

/// The power of two of the last place of the larger part.
long lastPlace(const Exact& z) {
    return std::max<long>(std::max(z.re.exponent(), z.im.exponent()) - mantissaBits, ExtendedBits::smallestExponent);
}

/// Computes with more and more bits until the value is certain to a small part of its last place.
Expected expectedOf(const MeasuredFunction& function, const Question& question) {
    constexpr mpfr_prec_t fewest = 192, most = 1 << 18;
    constexpr long certainBits = 16;
    for (Tracked::bits = fewest; Tracked::bits <= most; Tracked::bits *= 2) {
        try {
            const Exact value = function.exact(question.arguments);
            if (std::max(value.re.error(), value.im.error()) <= lastPlace(value) - certainBits) {
                return value;
            }
        } catch (const Undecided&) {
        } catch (const Refusal& refusal) {
            return refusal.code;
        }
    }
    throw std::runtime_error("no exact value of " + question.line);
}

/// Of real arguments nothing lies so close to the real axis without being on it.
bool isReal(const Exact& value, const Question& question) {
    const bool hasRealArguments = std::all_of(question.arguments.begin(), question.arguments.end(),
                                              [](const std::complex<Real>& z) { return z.imag() == 0; });
    return value.isReal() || (hasRealArguments && value.im.mayBeZero());
}

/// |answer - exact| in units of the last place.
double errorOf(const std::string& answer, const Tracked& exact, long unit) {
    BigFloat difference(Tracked::bits);
    setTo(difference.get(), numeralFrom(answer));
    mpfr_sub(difference.get(), difference.get(), exact.get(), MPFR_RNDN);
    mpfr_mul_2si(difference.get(), difference.get(), -unit, MPFR_RNDN);
    return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

/// "re" or "(re; im)". Throws std::runtime_error for anything else.
std::pair<std::string, std::string> partsOf(const std::string& answer) {
    if (!answer.starts_with('(')) {
        return {answer, ""};
    }
    const std::size_t separator = answer.find("; ");
    if (separator == std::string::npos || !answer.ends_with(')')) {
        throw std::runtime_error("no value: " + answer);
    }
    return {answer.substr(1, separator - 1), answer.substr(separator + 2, answer.size() - separator - 3)};
}

/// How an answer is wrong without being inexact.
enum class Wrong { ErrorForValue, ValueForError, OtherError, NotReal };
constexpr const char* wrongTexts[] = {"errors", "values for errors", "other errors", "not real"};
constexpr std::size_t wrongCount = std::size(wrongTexts);

/// The answers of one build to the questions of a row.
struct Cell {
    double largestError = 0;
    std::array<int, wrongCount> wrong{};

    [[nodiscard]] bool hasWrong() const {
        return std::any_of(wrong.begin(), wrong.end(), [](int count) { return count != 0; });
    }

    [[nodiscard]] std::string text() const {
        char number[32];
        std::snprintf(number, sizeof number, largestError < 1e4 ? "%.3f" : "%.1e", largestError);
        std::string text = number;
        for (std::size_t kind = 0; kind < wrong.size(); ++kind) {
            if (wrong[kind] != 0) {
                text += ", " + std::to_string(wrong[kind]) + " " + wrongTexts[kind];
            }
        }
        return text;
    }
};

std::optional<Wrong> wrongKind(const std::string& answer, const Expected& expected, const Question& question) {
    const bool isError = answer.starts_with("Error ");
    if (const ErrorCode* code = std::get_if<ErrorCode>(&expected)) {
        if (!isError) {
            return Wrong::ValueForError;
        }
        const bool isThis = answer == "Error (" + std::string(errorMessage(*code)) + ")";
        return isThis ? std::nullopt : std::optional(Wrong::OtherError);
    }
    if (isError) {
        return Wrong::ErrorForValue;
    }
    const bool isComplex = !partsOf(answer).second.empty();
    return isComplex && isReal(std::get<Exact>(expected), question) ? std::optional(Wrong::NotReal) : std::nullopt;
}

/// A row of the table.
class Row {
public:
    Row(const MeasuredFunction& function, std::size_t builds) : function_(function), cells_(builds) {}

    void add(const Question& question, const Expected& expected, std::size_t build, const std::string& answer) {
        Cell& cell = cells_[build];
        if (const std::optional<Wrong> wrong = wrongKind(answer, expected, question)) {
            // One of each kind is told.
            if (cell.wrong[static_cast<std::size_t>(*wrong)]++ == 0) {
                tell(question, expected, answer);
            }
            wrongLine_ = question.line;
        }
        const Exact* exact = std::get_if<Exact>(&expected);
        if (exact == nullptr || answer.starts_with("Error ")) {
            return;
        }
        hasComplexValues_ = hasComplexValues_ || !isReal(*exact, question);
        const auto [re, im] = partsOf(answer);
        const long unit = lastPlace(*exact);
        const double error = std::max(errorOf(re, exact->re, unit), errorOf(im.empty() ? "0" : im, exact->im, unit));
        cell.largestError = std::max(cell.largestError, error);
        if (error > largestError_ || worstQuestion_.line.empty()) {
            largestError_ = error;
            worstAnswer_ = answer;
            worstQuestion_ = question;
            worstExpected_ = expected;
        }
    }

    [[nodiscard]] double bound() const {
        switch (function_.reference) {
            case Reference::Exact:
                return hasComplexValues_ ? 2 : 1;
            case Reference::Steps:
                return 0;
            default:
                return std::numeric_limits<double>::infinity();
        }
    }

    /// Prints the row, and returns whether it is within its bound.
    bool print() const {
        std::string regions;
        for (const Region& region : function_.regions) {
            regions += (regions.empty() ? "" : "; ") + region.text();
        }
        std::printf("| `%s` | %s |", function_.name.c_str(), regions.c_str());
        for (const Cell& cell : cells_) {
            std::printf(" %s |", cell.text().c_str());
        }
        std::printf(" `%s` |\n", wrongLine_.empty() ? worstQuestion_.line.c_str() : wrongLine_.c_str());
        const bool isInexact = largestError_ > bound();
        if (isInexact) {
            tell(worstQuestion_, worstExpected_, worstAnswer_);
        }
        return !isInexact &&
               std::none_of(cells_.begin(), cells_.end(), [](const Cell& cell) { return cell.hasWrong(); });
    }

private:
    static void tell(const Question& question, const Expected& expected, const std::string& answer) {
        std::fprintf(stderr, "%s\n    = %s\n", question.line.c_str(), answer.c_str());
        if (const ErrorCode* code = std::get_if<ErrorCode>(&expected)) {
            std::fprintf(stderr, "not  Error (%s)\n", errorMessage(*code));
            return;
        }
        const Exact& exact = std::get<Exact>(expected);
        mpfr_fprintf(stderr, "not  (%.21Rg; %.21Rg), ", exact.re.get(), exact.im.get());
        for (const std::complex<Real>& argument : question.arguments) {
            std::fprintf(stderr, " (%.21Lg; %.21Lg)", argument.real(), argument.imag());
        }
        std::fprintf(stderr, "\n");
    }

    const MeasuredFunction& function_;
    std::vector<Cell> cells_;
    bool hasComplexValues_ = false;
    double largestError_ = 0;
    Question worstQuestion_;
    Expected worstExpected_ = ErrorCode::InternalFault;
    std::string worstAnswer_;
    std::string wrongLine_;  ///< Of an answer of a wrong kind.
};

/// Throws std::runtime_error for a function or an operator of the language without a row, and for a row without one.
void checkCompleteness() {
    std::map<std::string, bool, std::less<>> isMeasured;
    for (std::size_t keyword = 1; keyword <= keywordCount(); ++keyword) {
        if (classOf(keyword) != ArgumentClass::None) {
            isMeasured.emplace(nameOf(keyword), false);
        }
    }
    for (int first = ' '; first < 127; ++first) {
        for (int second = ' '; second < 127; ++second) {
            const std::string text{static_cast<char>(first), static_cast<char>(second)};
            const TokenClass postfix = classOfCharacter(text[0]);
            const bool isPostfix = postfix == TokenClass::Percent || postfix == TokenClass::Factorial;
            if (const std::size_t length = isPostfix ? 1 : readOperatorHere(text, 0).length; length != 0) {
                isMeasured.emplace(text.substr(0, length), false);
            }
        }
    }
    for (const std::string_view name : unmeasuredFunctions()) {
        isMeasured.at(std::string(name)) = true;
    }
    for (const MeasuredFunction& function : measuredFunctions()) {
        if (!isMeasured.contains(function.name) && lookup(function.name) == 0) {
            throw std::runtime_error("the language has no " + function.name);
        }
        isMeasured[function.name] = true;
    }
    for (const auto& [name, measured] : isMeasured) {
        if (!measured) {
            throw std::runtime_error("no row for " + name);
        }
    }
}

}  // namespace

bool measureFunctions(const Run& run) {
    checkCompleteness();
    RandomReals random(run.seed);
    std::vector<std::vector<Question>> questions;
    std::vector<std::string> lines;
    for (const MeasuredFunction& function : measuredFunctions()) {
        std::vector<Question> ofRow;
        const bool isWanted = run.only.empty() || run.only == function.name;
        for (int i = 0; isWanted && i < run.count; ++i) {
            ofRow.push_back(questionFor(function, random));
            lines.push_back(ofRow.back().line + " '16");
        }
        questions.push_back(std::move(ofRow));
    }
    const auto answers = ask(run, lines, losslessWord);
    printHeading(run, "function | arguments", "worst argument");
    bool isWell = true;
    std::size_t line = 0;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        if (questions[i].empty()) {
            continue;
        }
        Row row(measuredFunctions()[i], run.builds.size());
        for (const Question& question : questions[i]) {
            const Expected expected = expectedOf(measuredFunctions()[i], question);
            for (std::size_t build = 0; build < answers.size(); ++build) {
                row.add(question, expected, build, answers[build][line]);
            }
            ++line;
        }
        isWell = row.print() && isWell;
    }
    return isWell;
}

}  // namespace calquo
