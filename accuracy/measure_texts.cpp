// The tables of reading and of writing: how many literals are read as another number than the nearest one, and how many
// numbers are written with another digit than the exact number has.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <limits>
#include <stdexcept>

#include "arguments.h"
#include "builds.h"
#include "formats.h"
#include "lossless.h"
#include "numeral.h"
#include "written_fraction.h"
#include "written_number.h"

namespace calquo {
namespace {

/// The rows of a table that has one for each of the everyday bases and one for all others.
class RowsOfBases {
public:
    explicit RowsOfBases(const Run& run) { rows_.fill(std::vector<Cell>(run.builds.size())); }

    void add(std::uint32_t base, std::size_t build, const WrittenError& error, const std::string& line,
             const std::string& answer) {
        Cell& cell = rows_[rowOfBase(base)][build];
        cell.largestError = std::max(cell.largestError, error.units);
        if (error.isWrong) {
            ++cell.wrong;
            std::fprintf(stderr, "wrong: %s = %s\n", line.c_str(), answer.c_str());
        }
    }

    /// Prints the rows, and returns whether nothing is wrong.
    bool print(const std::string& firstColumn, bool hasErrors) const {
        bool isWell = true;
        for (std::size_t row = 0; row < baseRows; ++row) {
            const std::string base = row < std::size(everydayBases) ? std::to_string(everydayBases[row]) : "others";
            std::printf("| %s%s |", firstColumn.c_str(), base.c_str());
            for (const Cell& cell : rows_[row]) {
                isWell = isWell && cell.wrong == 0;
                std::printf(" %d", cell.wrong);
                if (hasErrors) {
                    std::printf(", %.3f", cell.largestError);
                }
                std::printf(" |");
            }
            std::printf("\n");
        }
        return isWell;
    }

private:
    /// The answers of one build in a row.
    struct Cell {
        int wrong = 0;
        double largestError = 0;  ///< Of all answers, wrong or not.
    };

    std::array<std::vector<Cell>, baseRows> rows_;
};

std::uint32_t baseInRow(std::size_t row, RandomReals& random) {
    std::uint32_t base = row < std::size(everydayBases) ? everydayBases[row] : 0;
    while (rowOfBase(base) != row || base == 0) {
        base = static_cast<std::uint32_t>(random.between(2, 36));
    }
    return base;
}

// --- Reading
// ----------------------------------------------------------------------------------------------------------

/// The first digits of a number half-way between two extended ones, often all of them, sometimes with one more digit
/// far after them.
Numeral almostHalfWay(std::uint32_t base, int exponent, std::size_t digitCount, RandomReals& random) {
    BigFloat middle;
    mpfr_set_ui(middle.get(), random.word() | std::uint64_t{1} << 63, MPFR_RNDN);
    mpfr_mul_2ui(middle.get(), middle.get(), 1, MPFR_RNDN);
    mpfr_add_ui(middle.get(), middle.get(), 1, MPFR_RNDN);
    mpfr_mul_2si(middle.get(), middle.get(), exponent, MPFR_RNDN);
    mpfr_exp_t pointPlace = 0;
    char* const written =
        mpfr_get_str(nullptr, &pointPlace, static_cast<int>(base), digitCount, middle.get(), MPFR_RNDZ);
    std::string digits(written);
    mpfr_free_str(written);
    std::transform(digits.begin(), digits.end(), digits.begin(), [](char digit) { return std::toupper(digit); });
    if (random.between(0, 2) == 0) {
        digits.append(static_cast<std::size_t>(random.between(0, 40)), '0').append("1");
    }
    return {base, false, digits.substr(0, 1), digits.substr(1), pointPlace - 1};
}

Numeral literalIn(std::uint32_t base, RandomReals& random) {
    const int exponent = random.between(0, 1) == 0 ? random.between(-16500, 16300) : random.between(-64, 64);
    const int digitCount = random.between(2, 120);
    if (random.between(0, 1) == 0) {
        return almostHalfWay(base, exponent, static_cast<std::size_t>(digitCount), random);
    }
    Numeral numeral{base, false, "", "", std::lround(exponent / std::log2(base))};
    for (int i = 0; i < digitCount; ++i) {
        (i == 0 ? numeral.whole : numeral.fraction) += digitOf(static_cast<std::uint32_t>(random.word() % base));
    }
    return numeral;
}

/// |answer - exact| in units of the last of 64 bits of the exact value.
double errorInBits(mpfr_srcptr answer, mpfr_srcptr exact) {
    constexpr mpfr_exp_t mantissaBits = 64, lowestBit = ExtendedBits::smallestExponent;
    BigFloat difference;
    mpfr_sub(difference.get(), answer, exact, MPFR_RNDN);
    const mpfr_exp_t unit =
        mpfr_zero_p(exact) != 0 ? lowestBit : std::max(mpfr_get_exp(exact) - mantissaBits, lowestBit);
    mpfr_mul_2si(difference.get(), difference.get(), -unit, MPFR_RNDN);
    return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

// --- Writing
// ----------------------------------------------------------------------------------------------------------

/// A few numbers up or down; still positive and finite.
Real beside(Real x, RandomReals& random) {
    for (int steps = random.between(-2, 2); steps != 0; steps += steps < 0 ? 1 : -1) {
        x = std::nextafter(x, steps < 0 ? Real(0) : positiveInfinity);
    }
    return std::clamp(x, std::numeric_limits<Real>::denorm_min(), largestFinite);
}

/// Half-way between two texts that a word can give, or as close to that as numbers are.
Real halfWay(Real x, NumericFormat word, std::uint32_t base) {
    BigFloat number(shiftedBits), half(shiftedBits);
    mpfr_set_ld(number.get(), x, MPFR_RNDN);
    const long place = lastPlaceOf(number.get(), word, base).place;
    shift(number.get(), base, place);
    mpfr_floor(number.get(), number.get());
    mpfr_set_d(half.get(), 0.5, MPFR_RNDN);
    mpfr_add(number.get(), number.get(), half.get(), MPFR_RNDN);
    shift(number.get(), base, -place);
    return mpfr_get_ld(number.get(), MPFR_RNDN);
}

/// Any number, with a bent for those that are hard to write.
Real numberToWrite(const CheckedFormat& format, NumericFormat word, std::uint32_t base, RandomReals& random) {
    const Real any = random.positive(random.between(1, 64));
    switch (random.between(0, 5)) {
        case 0:
            return beside(std::pow(static_cast<Real>(base), static_cast<Real>(random.between(-200, 200))), random);
        case 1: {
            constexpr std::array<Real, 6> edges = {1,
                                                   0x1p63L,
                                                   0x1p64L,
                                                   std::numeric_limits<Real>::denorm_min(),
                                                   std::numeric_limits<Real>::min(),
                                                   largestFinite};
            return beside(edges[static_cast<std::size_t>(random.between(0, edges.size() - 1))], random);
        }
        case 2:
        case 3:
            return format.writesFractions() ? any : beside(halfWay(any, word, base), random);
        default:
            return any;
    }
}

/// Asks for as many numbers in each row of bases, and adds what is wrong with them.
void addNumbers(const Run& run, int count, const CheckedFormat& format, NumericFormat word, RandomReals& random,
                RowsOfBases& rows) {
    struct Number {
        Real x;
        std::uint32_t base;
    };
    std::vector<Number> numbers;
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        for (std::size_t row = 0; row < baseRows; ++row) {
            const std::uint32_t base = baseInRow(row, random);
            const Real x = numberToWrite(format, word, base, random);
            numbers.push_back({random.between(0, 1) == 0 ? x : -x, base});
            lines.push_back(exactly(numbers.back().x) + " '" + std::to_string(base));
        }
    }
    const auto answers = ask(run, lines, word);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto [number, base] = numbers[i];
        BigFloat x;
        mpfr_set_ld(x.get(), number, MPFR_RNDN);
        for (std::size_t build = 0; build < answers.size(); ++build) {
            const std::string& text = answers[build][i];
            const WrittenError error = format.writesFractions()
                                           ? WrittenError{!isClosestFraction(text, x.get(), word, base), 0}
                                           : errorOfWritten(text, x.get(), word, base);
            rows.add(base, build, error, lines[i], text);
        }
    }
}

}  // namespace

bool measureReading(const Run& run) {
    RandomReals random(run.seed);
    std::vector<Numeral> literals;
    std::vector<std::string> lines;
    for (int i = 0; i < run.count; ++i) {
        for (std::size_t row = 0; row < baseRows; ++row) {
            literals.push_back(literalIn(baseInRow(row, random), random));
            lines.push_back(textOf(literals.back()) + " '16");
        }
    }
    const auto answers = ask(run, lines, losslessWord);
    RowsOfBases rows(run);
    for (std::size_t i = 0; i < literals.size(); ++i) {
        BigFloat exact, nearest, answer;
        setTo(exact.get(), literals[i]);
        mpfr_set_ld(nearest.get(), nearestReal(literals[i]), MPFR_RNDN);
        for (std::size_t build = 0; build < answers.size(); ++build) {
            setTo(answer.get(), numeralFrom(answers[build][i]));
            const bool isWrong = mpfr_equal_p(answer.get(), nearest.get()) == 0;
            rows.add(literals[i].base, build, {isWrong, errorInBits(answer.get(), exact.get())}, lines[i],
                     answers[build][i]);
        }
    }
    printHeading(run, "base");
    return rows.print("", true);
}

bool measureWriting(const Run& run) {
    RandomReals random(run.seed);
    bool isWell = true;
    printHeading(run, "format | base");
    for (const CheckedFormat& format : checkedFormats()) {
        RowsOfBases rows(run);
        const int words = static_cast<int>(format.words.size());
        for (const NumericFormat word : format.words) {
            addNumbers(run, (run.count + words - 1) / words, format, word, random, rows);
        }
        isWell = rows.print(std::string(format.name()) + " | ", !format.writesFractions()) && isWell;
    }
    return isWell;
}

}  // namespace calquo
