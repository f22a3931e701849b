// The bits of the 80-bit extended float: its parts, its limits and its special values. Any other layout is refused.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>

#include "values/value.h"

namespace calquo {

static_assert(std::numeric_limits<Real>::digits == 64 && std::numeric_limits<Real>::max_exponent == 16384 &&
                  std::endian::native == std::endian::little,
              "long double must be the x87 extended format");

/// Largest finite number; its negative is the lower bound of the range.
constexpr Real largestFinite = std::numeric_limits<Real>::max();
constexpr Real positiveInfinity = std::numeric_limits<Real>::infinity();

/// e and pi, nearest extended value.
constexpr Real eulerNumber = 2.71828182845904523536028747135266249776L;
constexpr Real pi = 3.14159265358979323846264338327950288420L;

/// The stored form: value = (-1)^sign * mantissa * 2^(exponentField - 16446), with exponentField read as 1 when it is
/// 0.
struct ExtendedBits {
    std::uint64_t mantissa = 0;      ///< all 64 bits, the integer bit included
    std::uint16_t signExponent = 0;  ///< bit 15 the sign, bits 0 to 14 the biased exponent

    static constexpr std::uint16_t exponentMask = 0x7FFF;
    static constexpr std::uint16_t signMask = 0x8000;
    /// Power of two of the mantissa's lowest bit when the exponent field is 0.
    static constexpr int exponentBias = 16446;
    static constexpr int smallestExponent = 1 - exponentBias;
    static constexpr int largestExponent = exponentMask - 1 - exponentBias;

    [[nodiscard]] bool negative() const { return (signExponent & signMask) != 0; }
    [[nodiscard]] std::uint16_t exponentField() const { return signExponent & exponentMask; }
    /// Infinity or NaN.
    [[nodiscard]] bool special() const { return exponentField() == exponentMask; }
    [[nodiscard]] bool infinite() const { return special() && mantissa << 1 == 0; }
    /// A NaN is quiet when its mantissa's second bit is set.
    [[nodiscard]] bool quiet() const { return (mantissa >> 62 & 1) != 0; }
    /// Power of two of the mantissa's lowest bit.
    [[nodiscard]] int exponent() const { return (exponentField() == 0 ? 1 : exponentField()) - exponentBias; }
};

inline ExtendedBits bitsOf(Real number) {
    ExtendedBits bits;
    std::memcpy(&bits.mantissa, &number, 8);
    std::memcpy(&bits.signExponent, reinterpret_cast<const unsigned char*>(&number) + 8, 2);
    return bits;
}

inline Real realOf(const ExtendedBits& bits) {
    Real number = 0;
    std::memcpy(&number, &bits.mantissa, 8);
    std::memcpy(reinterpret_cast<unsigned char*>(&number) + 8, &bits.signExponent, 2);
    return number;
}

}  // namespace calquo
