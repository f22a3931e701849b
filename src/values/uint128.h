// Unsigned 128-bit whole numbers in two 64-bit words, for targets with and without a built-in type of that width.
#pragma once

#include <bit>
#include <compare>
#include <cstdint>

namespace calquo {

/// high * 2^64 + low; arithmetic wraps modulo 2^128.
struct UInt128 {
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    // High word first, so the memberwise order is the numeric one.
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the 0 of the defaulted comparison for a pointer.
    friend constexpr auto operator<=>(const UInt128&, const UInt128&) = default;
};

constexpr UInt128 operator+(UInt128 a, UInt128 b) {
    const std::uint64_t low = a.low + b.low;
    return {a.high + b.high + (low < a.low ? 1 : 0), low};
}

constexpr UInt128 operator-(UInt128 a, UInt128 b) { return {a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low}; }

constexpr UInt128 operator~(UInt128 a) { return {~a.high, ~a.low}; }

/// a * 2^count for count >= 0; 0 from 128 on.
constexpr UInt128 shiftLeft(UInt128 a, int count) {
    if (count >= 64) {
        return {count >= 128 ? 0 : a.low << (count - 64), 0};
    }
    return count == 0 ? a : UInt128{a.high << count | a.low >> (64 - count), a.low << count};
}

/// floor(a / 2^count) for count >= 0; 0 from 128 on.
constexpr UInt128 shiftRight(UInt128 a, int count) {
    if (count >= 64) {
        return {0, count >= 128 ? 0 : a.high >> (count - 64)};
    }
    return count == 0 ? a : UInt128{a.high >> count, a.low >> count | a.high << (64 - count)};
}

/// Number of zero bits above the highest set bit; 128 for 0.
constexpr int leadingZeros(UInt128 a) { return a.high != 0 ? std::countl_zero(a.high) : 64 + std::countl_zero(a.low); }

/// The full product of two words.
constexpr UInt128 multiply(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
    __extension__ using Native = unsigned __int128;
    const Native product = static_cast<Native>(a) * b;
    return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
    constexpr std::uint64_t half = 0xFFFFFFFF;
    const std::uint64_t lowLow = (a & half) * (b & half);
    const std::uint64_t lowHigh = (a & half) * (b >> 32);
    const std::uint64_t highLow = (a >> 32) * (b & half);
    const std::uint64_t middle = (lowLow >> 32) + (lowHigh & half) + (highLow & half);
    return {(a >> 32) * (b >> 32) + (lowHigh >> 32) + (highLow >> 32) + (middle >> 32), middle << 32 | (lowLow & half)};
#endif
}

/// The upper half of the 256-bit product: floor(a b / 2^128).
constexpr UInt128 multiplyHigh(UInt128 a, UInt128 b) {
    const UInt128 highLow = multiply(a.high, b.low);
    const UInt128 lowHigh = multiply(a.low, b.high);
    const UInt128 middle = UInt128{0, highLow.low} + UInt128{0, lowHigh.low} + UInt128{0, multiply(a.low, b.low).high};
    return multiply(a.high, b.high) + UInt128{0, highLow.high} + UInt128{0, lowHigh.high} + UInt128{0, middle.high};
}

/// The lower half of the product.
constexpr UInt128 multiplyLow(UInt128 a, UInt128 b) {
    return UInt128{a.high * b.low + a.low * b.high, 0} + multiply(a.low, b.low);
}

/// Divides a by a divisor other than 0 in place and returns the remainder.
constexpr std::uint64_t divideInPlace(UInt128& a, std::uint32_t divisor) {
    std::uint64_t remainder = 0;
    const auto step = [&](std::uint64_t word) {
        const std::uint64_t upper = remainder << 32 | word >> 32;
        const std::uint64_t lower = (upper % divisor) << 32 | (word & 0xFFFFFFFF);
        remainder = lower % divisor;
        return (upper / divisor) << 32 | lower / divisor;
    };
    a.high = step(a.high);
    a.low = step(a.low);
    return remainder;
}

struct Quotient {
    UInt128 quotient;
    UInt128 remainder;
};

/// Divides by a divisor other than 0, in time proportional to the quotient's bits.
constexpr Quotient divide(UInt128 a, UInt128 divisor) {
    if (divisor == UInt128{}) {
        __builtin_unreachable();
    }
    if (a.high == 0 && divisor.high == 0) {
        return {{0, a.low / divisor.low}, {0, a.low % divisor.low}};
    }
    Quotient result{{}, a};
    for (int shift = leadingZeros(divisor) - leadingZeros(a); shift >= 0; --shift) {
        const UInt128 part = shiftLeft(divisor, shift);
        if (result.remainder >= part) {
            result.remainder = result.remainder - part;
            result.quotient = result.quotient + shiftLeft({0, 1}, shift);
        }
    }
    return result;
}

}  // namespace calquo
