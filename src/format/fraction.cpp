// Best rational approximation by continued fractions, in whole numbers.
#include "format/fraction.h"

#include "values/extended.h"
#include "values/uint128.h"

namespace calquo {
namespace {

/// Whether a b is below c d, as 256-bit products.
bool productBelow(UInt128 a, UInt128 b, UInt128 c, UInt128 d) {
    const UInt128 left = multiplyHigh(a, b);
    const UInt128 right = multiplyHigh(c, d);
    return left != right ? left < right : multiplyLow(a, b) < multiplyLow(c, d);
}

}  // namespace

Fraction closestFraction(Real x, std::uint64_t limit) {
    const ExtendedBits bits = bitsOf(x);
    const int scale = -bits.exponent();
    // Below 2^-64 zero is closer than 1 / limit.
    if (x == 0 || scale > 127) {
        return {};
    }
    // x = part / whole; each is also how far the convergents before and at hand lie from x, times their denominators.
    UInt128 whole = shiftLeft({0, 1}, scale);
    UInt128 part = {0, bits.mantissa};
    Fraction before = {1, 0};
    Fraction current = {0, 1};
    while (part != UInt128{}) {
        const Quotient step = divide(whole, part);
        const std::uint64_t most = (limit - before.denominator) / current.denominator;
        if (step.quotient > UInt128{0, most}) {
            const Fraction further = {most * current.numerator + before.numerator,
                                      most * current.denominator + before.denominator};
            const UInt128 distance = whole - multiplyLow({0, most}, part);
            const bool closer =
                most != 0 && productBelow(distance, {0, current.denominator}, part, {0, further.denominator});
            return closer ? further : current;
        }
        const Fraction next = {step.quotient.low * current.numerator + before.numerator,
                               step.quotient.low * current.denominator + before.denominator};
        before = current;
        current = next;
        whole = part;
        part = step.remainder;
    }
    return current;
}

}  // namespace calquo
