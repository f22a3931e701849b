// Digit generation by exact long division (Steele and White, How to Print Floating-Point Numbers Accurately, 1990).
#include "values/exact_digits.h"

#include "values/word_power.h"

namespace calquo {
namespace {

int digitsInWord(std::uint32_t base) {
    int count = 1;
    while (wordPower<std::uint32_t>(base, static_cast<std::uint64_t>(count) + 1)) {
        ++count;
    }
    return count;
}

}  // namespace

ExactDigits::ExactDigits(UInt128 mantissa, int exponent, std::uint32_t numericBase, int places)
    : base(numericBase), chunk(digitsInWord(numericBase)), rest(mantissa), unit(UInt128{0, 1}) {
    (places < 0 ? rest : unit).multiplyByPower(base, static_cast<unsigned>(places < 0 ? -places : places));
    (exponent < 0 ? unit : rest).shiftLeftBy(static_cast<unsigned>(exponent < 0 ? -exponent : exponent));
    const unsigned shift = unit.bitsToNormalize();
    rest.shiftLeftBy(shift);
    unit.shiftLeftBy(shift);
}

std::uint32_t ExactDigits::next(int count) {
    rest.multiplyBy(*wordPower<std::uint32_t>(base, static_cast<std::uint64_t>(count)));
    return rest.divideBy(unit);
}

bool ExactDigits::restIsHalfOrMore() {
    rest.multiplyBy(2);
    return compare(rest, unit) >= 0;
}

}  // namespace calquo
