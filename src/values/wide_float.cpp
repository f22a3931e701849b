// Operations on 128-bit floats.
#include "values/wide_float.h"

#include <algorithm>
#include <cmath>

#include "values/extended.h"

namespace calquo {

WideFloat wideFloat(Real x) {
    const ExtendedBits bits = bitsOf(x);
    return normalized({bits.mantissa, 0}, bits.exponent() - 64);
}

WideFloat reciprocal(const WideFloat& a) {
    // A first estimate good to 62 bits, then one step of Newton: y (2 - a y), which doubles them.
    const Real scaled = static_cast<Real>(a.mantissa.high) * 0x1p-64L;  // in [1/2, 1)
    const Real estimate = (1 / scaled) * 0x1p62L;                       // in (2^62, 2^63]
    const UInt128 y = {static_cast<std::uint64_t>(estimate), 0};        // about 2^254 / mantissa
    const UInt128 product = multiplyHigh(a.mantissa, y);                // about 2^126
    constexpr UInt128 one = {std::uint64_t{1} << 62, 0};
    // Four times the deviation from 1, so that it is a fraction of 2^128.
    const UInt128 corrected = product > one ? y - multiplyHigh(y, shiftLeft(product - one, 2))
                                            : y + multiplyHigh(y, shiftLeft(one - product, 2));
    return normalized(corrected, -254 - a.exponent);
}

WideFloat squareRoot(const WideFloat& a) {
    // a = fraction * 2^exponent with an even exponent and a fraction from 1/4 to 1.
    const bool odd = (a.exponent & 1) != 0;
    const int exponent = a.exponent + 128 + (odd ? 1 : 0);
    const UInt128 fraction = shiftRight(a.mantissa, odd ? 1 : 0);
    // The root of the leading bits, and one step of Newton: s + (fraction - s^2) / 2s.
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<Real>(fraction.high) * 0x1p-64L) * 0x1p64L);
    const UInt128 square = multiply(root, root);
    const bool below = square > fraction;
    const UInt128 rest = below ? square - fraction : fraction - square;
    const Real difference = static_cast<Real>(rest.high) * 0x1p64L + static_cast<Real>(rest.low);
    // In units of 2^-127, since it may reach 2^-63.
    const auto correction = static_cast<std::uint64_t>(difference / static_cast<Real>(root) * 0x1p62L);
    const UInt128 step = shiftLeft({0, correction}, 1);
    const UInt128 start = {root, 0};
    // Next to 1 the sum may round up to it.
    const UInt128 sum = below ? start - step : start + step;
    return normalized(!below && sum < start ? ~UInt128{} : sum, exponent / 2 - 128);
}

WideFloat power(std::uint32_t base, int exponent) {
    WideFloat result = wideFloat(std::uint64_t{1});
    WideFloat square = wideFloat(std::uint64_t{base});
    for (unsigned left = static_cast<unsigned>(exponent < 0 ? -exponent : exponent); left != 0; left >>= 1) {
        if ((left & 1) != 0) {
            result = multiply(result, square);
        }
        square = multiply(square, square);
    }
    return exponent < 0 ? reciprocal(result) : result;
}

Truncation truncate(const WideFloat& a) {
    // How many of the mantissa's lowest bits do not fit: 64, more for a denormal.
    const int dropped = std::max(64, ExtendedBits::smallestExponent - a.exponent);
    // Far below the denormals nothing is kept, and only how the rest compares with one half matters.
    const UInt128 mantissa = shiftRight(a.mantissa, std::max(dropped - 128, 0));
    const UInt128 kept = shiftRight(mantissa, dropped);
    const UInt128 rest = mantissa - shiftLeft(kept, dropped);
    return {kept.low, a.exponent + dropped, rest, shiftLeft({0, 1}, std::min(dropped, 128) - 1)};
}

Real toReal(const Truncation& a, bool up) {
    ExtendedBits bits;
    bits.mantissa = a.kept + (up ? 1 : 0);
    int exponent = a.exponent;
    if (up && bits.mantissa == 0) {
        bits.mantissa = std::uint64_t{1} << 63;
        ++exponent;
    }
    if (exponent > ExtendedBits::largestExponent) {
        return positiveInfinity;
    }
    const bool normal = bits.mantissa >> 63 != 0;
    bits.signExponent = static_cast<std::uint16_t>(normal ? exponent + ExtendedBits::exponentBias : 0);
    return realOf(bits);
}

Real toReal(const WideFloat& a) {
    const Truncation cut = truncate(a);
    return toReal(cut, cut.rest > cut.half || (cut.rest == cut.half && (cut.kept & 1) != 0));
}

}  // namespace calquo
