// Multiplication modulo an odd word without any division (P. L. Montgomery, Modular Multiplication Without Trial
// Division, 1985), for primality, factor searches and least common multiples.
#pragma once

#include <cstdint>

#include "values/uint128.h"

namespace calquo {

/// Arithmetic modulo an odd modulus m. Numbers x are held as residues x 2^64 mod m, below m.
class Montgomery {
public:
    explicit constexpr Montgomery(std::uint64_t modulus)
        : modulus_(modulus), inverse_(modulus), one_((0 - modulus) % modulus), square_(one_) {
        // An odd number is its own inverse modulo 8, and each step of Newton's iteration doubles the correct bits.
        for (int bits = 3; bits < 64; bits *= 2) {
            inverse_ *= 2 - modulus * inverse_;
        }
        for (int doublings = 0; doublings < 64; ++doublings) {
            square_ = add(square_, square_);
        }
    }

    /// The residue of 1; 0 for the modulus 1.
    [[nodiscard]] constexpr std::uint64_t one() const { return one_; }

    /// The residue of any word.
    [[nodiscard]] constexpr std::uint64_t residue(std::uint64_t number) const { return multiply(number, square_); }

    /// The residue of the product of two residues; a b / 2^64 mod m for any a below m and any word b.
    [[nodiscard]] constexpr std::uint64_t multiply(std::uint64_t a, std::uint64_t b) const {
        const UInt128 product = calquo::multiply(a, b);
        const std::uint64_t high = calquo::multiply(product.low * inverse_, modulus_).high;
        return product.high >= high ? product.high - high : product.high + (modulus_ - high);
    }

    /// (a + b) mod m and (a - b) mod m, for a and b below m.
    [[nodiscard]] constexpr std::uint64_t add(std::uint64_t a, std::uint64_t b) const {
        return a >= modulus_ - b ? a - (modulus_ - b) : a + b;
    }
    [[nodiscard]] constexpr std::uint64_t subtract(std::uint64_t a, std::uint64_t b) const {
        return a >= b ? a - b : a + (modulus_ - b);
    }

private:
    std::uint64_t modulus_;
    std::uint64_t inverse_;  ///< of m modulo 2^64
    std::uint64_t one_;      ///< 2^64 mod m
    std::uint64_t square_;   ///< 2^128 mod m
};

}  // namespace calquo
