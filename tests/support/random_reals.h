// Random extended numbers over all bit patterns, from a seed that a failing test prints.
#pragma once

#include <cstdint>
#include <random>

#include "values/extended.h"

namespace calquo {

class RandomReals {
public:
    static constexpr std::uint64_t seed = 20260117;

    explicit RandomReals(std::uint64_t otherSeed = seed) : generator(otherSeed) {}

    std::uint64_t word() { return generator(); }

    /// Uniform from low to high.
    int between(int low, int high) {
        return low + static_cast<int>(word() % static_cast<std::uint64_t>(high - low + 1));
    }

    /// A positive finite number: half of them anywhere in the range, denormals included, half near 1. At most the given
    /// number of the mantissa's leading bits are set.
    Real positive(int mantissaBits = 64) {
        ExtendedBits bits;
        const int field = between(0, 1) == 0 ? between(0, 0x7FFE) : between(16383 - 60, 16383 + 60);
        bits.signExponent = static_cast<std::uint16_t>(field);
        bits.mantissa = (word() | std::uint64_t{1} << 63) >> (64 - mantissaBits) << (64 - mantissaBits);
        if (field == 0) {
            bits.mantissa &= ~(std::uint64_t{1} << 63);
            bits.mantissa |= std::uint64_t{1} << 62;
        }
        return realOf(bits);
    }

private:
    std::mt19937_64 generator;
};

}  // namespace calquo
