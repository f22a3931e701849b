// accuracy_lines COUNT: prints that many lines for each function, with random arguments written exactly, for calq to
// answer with all its digits.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "format/value_writer.h"
#include "functions.h"
#include "support/random_reals.h"

namespace {

using namespace calquo;

constexpr NumericFormat allDigits = std::uint32_t{1} << 28 | field::significantDigits;

/// The power of two is uniform over the range, and the mantissa too; a quarter of the mantissas have few bits.
std::string argumentIn(const Range& range, RandomReals& random) {
    ExtendedBits bits{random.word() | std::uint64_t{1} << 63, 0};
    if (random.between(0, 3) == 0) {
        bits.mantissa = bits.mantissa >> 56 << 56;
    }
    bits.signExponent = static_cast<std::uint16_t>(16383 + random.between(range.low, range.high - 1));
    const Real argument = range.negativeToo && random.between(0, 1) == 0 ? -realOf(bits) : realOf(bits);
    return FormatValue(Value(argument), allDigits, 16);
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: accuracy_lines COUNT\n");
        return 2;
    }
    RandomReals random;
    for (const MeasuredFunction& function : measuredFunctions()) {
        for (int lines = static_cast<int>(std::strtol(arguments[1], nullptr, 10)); lines > 0; --lines) {
            std::string line = std::string(function.name) + "(" + argumentIn(function.range, random);
            if (function.hasTwoArguments) {
                line += "; " + argumentIn(function.second, random);
            }
            std::printf("%s) '16\n", line.c_str());
        }
    }
    return 0;
}
