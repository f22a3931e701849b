// Three ways to the digits, the fastest first: one exact 128-bit product, a bounded 128-bit approximation, exact long
// division.
#include "format/digits.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "engine/characters.h"
#include "values/exact_digits.h"
#include "values/extended.h"
#include "values/wide_float.h"
#include "values/word_power.h"

namespace calquo {
namespace {

/// number / 2^shift, halves up; shift is 1 or more.
UInt128 roundedShift(UInt128 number, int shift) {
    if (shift > 128) {
        return {};
    }
    const bool up = (shiftRight(number, shift - 1).low & 1) != 0;
    const UInt128 whole = shiftRight(number, shift);
    return up ? whole + UInt128{0, 1} : whole;
}

/// The rounded product where it can be had exactly in 128 bits.
std::optional<UInt128> exactProduct(const ExtendedBits& bits, std::uint32_t base, int places) {
    const std::optional<std::uint64_t> scale = wordPower(base, static_cast<std::uint64_t>(std::abs(places)));
    if (!scale) {
        return std::nullopt;
    }
    const int exponent = bits.exponent();
    if (places >= 0) {
        const UInt128 product = multiply(bits.mantissa, *scale);
        if (exponent < 0) {
            return roundedShift(product, -exponent);
        }
        return leadingZeros(product) >= exponent && exponent < 128 ? std::optional(shiftLeft(product, exponent))
                                                                   : std::nullopt;
    }
    // Half of an even scale is whole, so that a fraction of the number below it cannot matter.
    if (base % 2 != 0 || exponent > 0 || exponent <= -64) {
        return std::nullopt;
    }
    const std::uint64_t whole = bits.mantissa >> -exponent;
    const bool up = whole % *scale >= *scale / 2;
    return UInt128{0, whole / *scale + (up ? 1 : 0)};
}

/// The rounded product where it fits into a word and 128 bits settle the rounding.
std::optional<UInt128> approximateProduct(Real x, std::uint32_t base, int places) {
    const WideFloat product = multiply(wideFloat(x), power(base, places));
    const int shift = -product.exponent;
    if (shift < 64 || shift > 127) {
        return std::nullopt;
    }
    const UInt128 whole = shiftRight(product.mantissa, shift);
    const UInt128 rest = product.mantissa - shiftLeft(whole, shift);
    const UInt128 half = shiftLeft({0, 1}, shift - 1);
    const UInt128 error = {0, (static_cast<std::uint64_t>(std::abs(places)) + 2) << 7};
    if ((rest > half ? rest - half : half - rest) <= error) {
        return std::nullopt;
    }
    return rest > half ? whole + UInt128{0, 1} : whole;
}

void appendNumber(DigitBuffer& digits, std::uint32_t number, std::uint32_t base, int count) {
    std::uint32_t divisor = 1;
    for (int i = 1; i < count; ++i) {
        divisor *= base;
    }
    for (; count > 0; --count) {
        digits.append(number / divisor % base);
        divisor /= base;
    }
}

void exactDigits(const ExtendedBits& bits, std::uint32_t base, int places, int top, DigitBuffer& digits) {
    ExactDigits source({0, bits.mantissa}, bits.exponent(), base, top);
    if (source.tooLarge()) {
        exactDigits(bits, base, places, top + 1, digits);
        return;
    }
    digits.clear();
    int left = top + places;
    while (left > 0) {
        const int count = std::min(left, source.largestChunk());
        appendNumber(digits, source.next(count), base, count);
        left -= count;
    }
    if (left == 0 && source.restIsHalfOrMore()) {
        digits.increment(base);
    }
}

}  // namespace

void DigitBuffer::append(std::uint32_t digit) {
    if (length_ != 0 || digit != 0) {
        characters_[length_] = digitCharacter(digit);
        ++length_;
    }
}

void DigitBuffer::assign(UInt128 number, std::uint32_t base) {
    clear();
    while (number.high != 0) {
        characters_[length_++] = digitCharacter(static_cast<std::uint32_t>(divideInPlace(number, base)));
    }
    for (std::uint64_t word = number.low; word != 0; word /= base) {
        characters_[length_++] = digitCharacter(static_cast<std::uint32_t>(word % base));
    }
    std::reverse(characters_.begin(), characters_.begin() + static_cast<std::ptrdiff_t>(length_));
}

void DigitBuffer::increment(std::uint32_t base) {
    for (std::size_t i = length_; i-- != 0;) {
        const std::uint32_t digit = digitValue(characters_[i]) + 1;
        characters_[i] = digitCharacter(digit % base);
        if (digit != base) {
            return;
        }
    }
    // Every digit was the highest one: all are 0 now, and a 1 goes before them.
    characters_[length_] = '0';
    ++length_;
    characters_[0] = '1';
}

int leadingPlace(Real x, std::uint32_t base) {
    const Real logarithm = std::log2(x) / std::log2(static_cast<Real>(base));
    // More than what the three roundings can have added.
    return static_cast<int>(std::floor(logarithm - std::fabs(logarithm) * 0x1p-60L));
}

void roundedDigits(Real x, std::uint32_t base, int places, DigitBuffer& digits) {
    const ExtendedBits bits = bitsOf(x);
    std::optional<UInt128> number = exactProduct(bits, base, places);
    if (!number) {
        number = approximateProduct(x, base, places);
    }
    if (number) {
        digits.assign(*number, base);
        return;
    }
    exactDigits(bits, base, places, leadingPlace(x, base) + 1, digits);
}

}  // namespace calquo
