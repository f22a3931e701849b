// accuracy_lines COUNT FOLDER: writes random lines for calq into files of the folder: COUNT calls of each function
// in each of its ranges, COUNT literals and, for each kind of format, COUNT numbers to be written in each row of bases.
// Numbers are given exactly.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <span>
#include <string>

#include "format/value_writer.h"
#include "formats.h"
#include "functions.h"
#include "questions.h"
#include "support/lossless.h"
#include "support/numeral.h"
#include "support/random_reals.h"
#include "support/written_number.h"

namespace {

using namespace calquo;

std::string exactly(Real x) { return FormatValue(Value(x), losslessWord, losslessBase); }

/// The power of two is uniform over the range, and the mantissa too; a quarter of the mantissas have few bits.
Real argumentIn(const Range& range, RandomReals& random) {
    ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
    if (random.between(0, 3) == 0) {
        bits.mantissa = bits.mantissa >> 56 << 56;
    }
    bits.signExponent = static_cast<std::uint16_t>(16383 + random.between(range.low, range.high - 1));
    const bool isNegative = range.sign == Sign::Negative || (range.sign == Sign::Either && random.between(0, 1) == 0);
    return range.offset + (isNegative ? -realOf(bits) : realOf(bits));
}

void writeFunctions(std::span<const MeasuredFunction> functions, int count, RandomReals& random, std::ofstream lines) {
    for (const MeasuredFunction& function : functions) {
        for (int i = 0; i < count; ++i) {
            lines << function.name << "(" << exactly(argumentIn(function.range, random));
            if (function.hasTwoArguments) {
                lines << "; " << exactly(argumentIn(function.second, random));
            }
            lines << ") '16\n";
        }
    }
}

std::uint32_t baseInRow(std::size_t row, RandomReals& random) {
    std::uint32_t base = row < std::size(everydayBases) ? everydayBases[row] : 0;
    while (rowOfBase(base) != row || base == 0) {
        base = static_cast<std::uint32_t>(random.between(2, 36));
    }
    return base;
}

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

void writeNumbers(const CheckedFormat& format, NumericFormat word, int count, RandomReals& random,
                  std::ofstream lines) {
    for (int i = 0; i < count; ++i) {
        for (std::size_t row = 0; row < baseRows; ++row) {
            const std::uint32_t base = baseInRow(row, random);
            const Real x = numberToWrite(format, word, base, random);
            lines << exactly(random.between(0, 1) == 0 ? x : -x) << " '" << base << "\n";
        }
    }
}

/// The first digits of a number half-way between two extended ones, often all of them, sometimes with one more digit
/// far behind.
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

void writeLiterals(int count, RandomReals& random, std::ofstream lines) {
    for (int i = 0; i < count; ++i) {
        for (std::size_t row = 0; row < baseRows; ++row) {
            lines << textOf(literalIn(baseInRow(row, random), random)) << " '16\n";
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fprintf(stderr, "usage: accuracy_lines COUNT FOLDER\n");
        return 2;
    }
    const int lineCount = static_cast<int>(std::strtol(arguments[1], nullptr, 10));
    const std::filesystem::path folder = arguments[2];
    RandomReals random;
    writeFunctions(measuredFunctions(), lineCount, random,
                   std::ofstream(folder / fileName(functionsName, losslessWord)));
    writeFunctions(cancellingFunctions(), lineCount, random,
                   std::ofstream(folder / fileName(cancellingName, losslessWord)));
    writeLiterals(lineCount, random, std::ofstream(folder / fileName(literalsName, losslessWord)));
    for (const CheckedFormat& format : checkedFormats()) {
        const int words = static_cast<int>(format.words.size());
        for (const NumericFormat word : format.words) {
            writeNumbers(format, word, (lineCount + words - 1) / words, random,
                         std::ofstream(folder / fileName(format.name(), word)));
        }
    }
    return 0;
}
