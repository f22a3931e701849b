// Digit generation by exact long division (Steele and White, How to Print Floating-Point Numbers Accurately, 1990).
#include "values/exact_digits.h"

namespace calquo {
namespace {

std::uint32_t smallPower(std::uint32_t base, int exponent) {
    std::uint32_t result = 1;
    for (; exponent > 0; --exponent) {
        result *= base;
    }
    return result;
}

int digitsInWord(std::uint32_t base) {
    int count = 0;
    for (std::uint64_t power = base; power <= UINT32_MAX; power *= base) {
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
    rest.multiplyBy(smallPower(base, count));
    return rest.divideBy(unit);
}

bool ExactDigits::restIsHalfOrMore() {
    rest.multiplyBy(2);
    return compare(rest, unit) >= 0;
}

}  // namespace calquo
