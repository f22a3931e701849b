// The fewest digits, found by reading back what is written.
#include "format/shortest_digits.h"

#include <cmath>
#include <limits>

#include "engine/characters.h"
#include "engine/literal_value.h"
#include "format/digits.h"

namespace calquo {
namespace {

/// The digits of x > 0, rounded to `count` of them. Returns the places after the mark that they reach.
int significantDigits(Real x, std::uint32_t base, int count, DigitBuffer& digits) {
    int places = count - 1 - leadingPlace(x, base);
    roundedDigits(x, base, places, digits);
    // The estimate was too low, or the rounding carried into a new leading digit.
    while (digits.count() != count) {
        places += count - digits.count();
        roundedDigits(x, base, places, digits);
    }
    return places;
}

Real readBack(const DigitBuffer& digits, std::uint32_t base, int places) {
    LiteralDigits literal{base, digits.text()};
    literal.count = digits.count();
    literal.exponent = -places;
    for (const char digit : digits.text()) {
        const std::uint64_t value = digitValue(digit);
        literal.significandFits &= literal.significand <= (std::numeric_limits<std::uint64_t>::max() - value) / base;
        literal.significand = literal.significand * base + value;
    }
    return literalValue(literal);
}

/// So many digits that numbers of no more digits are further apart than what reads as one extended number. When they
/// do not read back as x, fewer digits do not, either; when they do, those that are zeros at the end are the ones that
/// x does not need.
int digitsWithoutChoice(Real x, std::uint32_t base) {
    if (x < std::numeric_limits<Real>::min()) {
        return 1;  // a denormal has fewer bits
    }
    constexpr Real precision = 0x1p62L;
    int count = 0;
    for (Real power = static_cast<Real>(base); power < precision; power *= static_cast<Real>(base)) {
        ++count;
    }
    return count;
}

}  // namespace

int digitsToReadBack(Real x, std::uint32_t base) {
    const Real magnitude = std::fabs(x);
    if (magnitude == 0) {
        return 1;
    }
    DigitBuffer digits;
    for (int count = digitsWithoutChoice(magnitude, base);; ++count) {
        const int places = significantDigits(magnitude, base, count, digits);
        if (readBack(digits, base, places) == magnitude) {
            return static_cast<int>(digits.text().find_last_not_of('0')) + 1;
        }
    }
}

}  // namespace calquo
