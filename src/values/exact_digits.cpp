// Digit generation by exact long division (Steele and White, How to Print Floating-Point Numbers Accurately, 1990).
#include "values/exact_digits.h"

#include "values/word_power.h"

namespace calquo {
namespace {

/// The most digits whose numbers keep to the bound of WideNatural's quotients.
int digitsInQuotient(std::uint32_t base) {
    int count = 1;
    for (std::uint64_t power = base; power * base <= WideNatural::quotientBound; power *= base) {
        ++count;
    }
    return count;
}

}  // namespace

ExactDigits::ExactDigits(UInt128 mantissa, int exponent, std::uint32_t base, int places)
    : base_(base), largestChunk_(digitsInQuotient(base)), rest_(mantissa), unit_(UInt128{0, 1}) {
    (places < 0 ? rest_ : unit_).multiplyByPower(base, static_cast<unsigned>(places < 0 ? -places : places));
    (exponent < 0 ? unit_ : rest_).shiftLeftBy(static_cast<unsigned>(exponent < 0 ? -exponent : exponent));
    const unsigned shift = unit_.bitsToNormalize();
    rest_.shiftLeftBy(shift);
    unit_.shiftLeftBy(shift);
}

std::uint32_t ExactDigits::next(int count) {
    rest_.multiplyBy(*wordPower<std::uint32_t>(base_, static_cast<std::uint64_t>(count)));
    return rest_.divideBy(unit_);
}

bool ExactDigits::restIsHalfOrMore() {
    rest_.multiplyBy(2);
    return compare(rest_, unit_) >= 0;
}

}  // namespace calquo
