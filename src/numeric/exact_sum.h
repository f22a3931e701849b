// Sums of products that are exact, whatever cancels: a fixed-point number as wide as the squares of all numbers below
// 2^8000.
#pragma once

#include <array>
#include <cstdint>

#include "numeric/signed_wide.h"

namespace calquo {

class ExactSum {
public:
    /// Adds an exact product of two extended numbers below 2^8000, or of one of them and a digit of such a sum. At most
    /// 2^30 terms fit.
    void add(const SignedWide& term, bool subtract = false);
    /// Adds another sum `times` over, or takes it away; |times| is at most 2^30.
    void add(ExactSum other, std::int64_t times);

    /// Calls `take` with the parts that the sum consists of, each a number of 32 bits.
    template <typename Take>
    void forEachPart(Take take) {
        const bool negative = normalize();
        for (std::size_t index = 0; index < digits_.size(); ++index) {
            if (digits_[index] != 0) {
                take(SignedWide(normalized({0, static_cast<std::uint64_t>(digits_[index])}, exponentOf(index)),
                                negative));
            }
        }
    }

    /// The sum within 2^-126 of itself; 0 is exact.
    SignedWide value();

private:
    static constexpr int digitBits = 32;
    /// Below the last bit of the smallest square, and above the largest with all that is added.
    static constexpr int lowestExponent = -33'088;
    static constexpr std::size_t digitCount = 1'540;

    static int exponentOf(std::size_t index) { return lowestExponent + digitBits * static_cast<int>(index); }
    /// Leaves the magnitude's digits, each below 2^32, and tells whether the sum is negative.
    bool normalize();
    std::int64_t carry();

    std::array<std::int64_t, digitCount> digits_{};  ///< Lowest first; they may be negative and larger than a digit.
};

}  // namespace calquo
