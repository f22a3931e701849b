// Best rational approximation by continued fractions, in whole numbers.
#include "format/fraction.h"

#include "values/extended.h"

namespace calquo {
namespace {

/// Whether a b is below c d, as 256-bit products.
bool productBelow(UInt128 a, UInt128 b, UInt128 c, UInt128 d) {
    const UInt128 left = multiplyHigh(a, b);
    const UInt128 right = multiplyHigh(c, d);
    return left != right ? left < right : multiplyLow(a, b) < multiplyLow(c, d);
}

/// 2^exponent / divisor for an exponent of 0 and above; the quotient must be below 2^128.
Quotient dividePowerOfTwo(int exponent, std::uint64_t divisor) {
    Quotient result = divide(shiftLeft({0, 1}, exponent < 127 ? exponent : 127), {0, divisor});
    for (int i = 127; i < exponent; ++i) {
        result.quotient = shiftLeft(result.quotient, 1);
        result.remainder = shiftLeft(result.remainder, 1);
        if (result.remainder >= UInt128{0, divisor}) {
            result.remainder = result.remainder - UInt128{0, divisor};
            result.quotient = result.quotient + UInt128{0, 1};
        }
    }
    return result;
}

}  // namespace

Fraction closestFraction(Real x, UInt128 limit) {
    // Up to there zero is closer than 1 / limit.
    if (x <= 0x1p-128L) {
        return {};
    }
    const ExtendedBits bits = bitsOf(x);
    const int scale = -bits.exponent();
    // The first step: x = mantissa / 2^scale lies between 1 / (quotient + 1) and 1 / quotient.
    const Quotient first = dividePowerOfTwo(scale, bits.mantissa);
    if (first.quotient > limit) {
        // 0 or 1 / limit, whichever is closer.
        return shiftLeft(limit, 1) > first.quotient ? Fraction{{0, 1}, limit} : Fraction{};
    }
    // Two successive remainders; each is how far a convergent lies from x, times its denominator and 2^scale.
    UInt128 whole = {0, bits.mantissa};
    UInt128 part = first.remainder;
    Fraction before;
    Fraction current = {{0, 1}, first.quotient};
    while (part != UInt128{}) {
        const Quotient step = divide(whole, part);
        const UInt128 most = divide(limit - before.denominator, current.denominator).quotient;
        const auto onwards = [&](UInt128 steps) {
            return Fraction{multiplyLow(steps, current.numerator) + before.numerator,
                            multiplyLow(steps, current.denominator) + before.denominator};
        };
        if (step.quotient > most) {
            const Fraction further = onwards(most);
            const UInt128 distance = whole - multiplyLow(most, part);
            // Without a further step that is the convergent before, which is never closer.
            return productBelow(distance, current.denominator, part, further.denominator) ? further : current;
        }
        const Fraction next = onwards(step.quotient);
        before = current;
        current = next;
        whole = part;
        part = step.remainder;
    }
    return current;
}

}  // namespace calquo
