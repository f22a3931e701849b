// Whole numbers wide enough for any extended number times any power that brings it near 1, in a fixed array: what the
// exact road of reading and writing computes with. No allocation.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "values/uint128.h"

namespace calquo {

/// A whole number of up to 16,896 bits; the largest that occurs is 2^16446 times a factor below 2^160.
class WideNatural {
public:
    explicit WideNatural(UInt128 number);

    [[nodiscard]] bool isZero() const { return used_ == 0; }

    void multiplyBy(std::uint32_t factor);
    /// Multiplies by base^exponent.
    void multiplyByPower(std::uint32_t base, unsigned exponent);
    void shiftLeftBy(unsigned bits);

    /// How far the number can be shifted left until the top bit of its highest word is set. The number is not 0.
    [[nodiscard]] unsigned bitsToNormalize() const;

    static constexpr std::uint64_t quotientBound = std::uint64_t{1} << 31;

    /// Replaces the number by its remainder modulo the divisor and returns the quotient, which must be below
    /// quotientBound. The divisor's highest word must have its top bit set (Knuth, The Art of Computer Programming,
    /// volume 2, 4.3.1 D).
    std::uint32_t divideBy(const WideNatural& divisor);

    friend int compare(const WideNatural& a, const WideNatural& b);

private:
    static constexpr std::size_t capacity = 528;

    void append(std::uint32_t word);
    /// Subtracts factor times the divisor; true when that was too much, the number then being 2^32 words too high.
    bool subtractProduct(const WideNatural& divisor, std::uint32_t factor);
    void addBack(const WideNatural& divisor);
    void trim();

    std::array<std::uint32_t, capacity> words_;  // lowest first; deliberately uninitialized beyond the used ones
    std::size_t used_ = 0;
};

/// Negative, 0 or positive as a is below, equal to or above b.
int compare(const WideNatural& a, const WideNatural& b);

}  // namespace calquo
