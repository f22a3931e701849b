// Operations on 128-bit floats.
#include "values/wide_float.h"

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

Real toReal(const WideFloat& a) {
    ExtendedBits bits;
    // How many of the mantissa's lowest bits do not fit: 64, more for a denormal.
    int dropped = 64;
    if (a.exponent + dropped < ExtendedBits::smallestExponent) {
        dropped = ExtendedBits::smallestExponent - a.exponent;
    }
    if (dropped > 128) {
        return 0;
    }
    const UInt128 kept = dropped == 128 ? UInt128{} : shiftRight(a.mantissa, dropped);
    const UInt128 rest = dropped == 128 ? a.mantissa : a.mantissa - shiftLeft(kept, dropped);
    const UInt128 half = shiftLeft({0, 1}, dropped - 1);
    bits.mantissa = kept.low;
    int exponent = a.exponent + dropped;
    if (rest > half || (rest == half && (bits.mantissa & 1) != 0)) {
        ++bits.mantissa;
        if (bits.mantissa == 0) {
            bits.mantissa = std::uint64_t{1} << 63;
            ++exponent;
        }
    }
    if (exponent > ExtendedBits::largestExponent) {
        return positiveInfinity;
    }
    const bool normal = bits.mantissa >> 63 != 0;
    bits.signExponent = static_cast<std::uint16_t>(normal ? exponent + ExtendedBits::exponentBias : 0);
    return realOf(bits);
}

}  // namespace calquo
