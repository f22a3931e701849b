// Rounding of literals: fast when sure, exact otherwise.
#include "engine/literal_value.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "engine/characters.h"
#include "values/exact_digits.h"
#include "values/extended.h"
#include "values/uint128.h"
#include "values/wide_float.h"
#include "values/word_power.h"

namespace calquo {
namespace {

/// Walks over the digits of a literal from the first significant one on, and over zeros without end after them.
class DigitReader {
public:
    explicit DigitReader(const LiteralDigits& literal) : text_(literal.text), left_(literal.count) { skipZeros(); }

    /// Digits from the current one on.
    [[nodiscard]] std::int64_t remaining() const { return left_; }

    std::uint32_t next() {
        if (left_ == 0) {
            return 0;
        }
        const std::uint32_t digit = peek();
        ++index_;
        --left_;
        return digit;
    }

    /// Whether a digit other than 0 follows.
    bool anyLeft() {
        skipZeros();
        return left_ != 0;
    }

private:
    void skipZeros() {
        while (left_ != 0 && peek() == 0) {
            next();
        }
    }

    std::uint32_t peek() {
        while (digitValue(text_[index_]) == notADigit) {
            ++index_;
        }
        return digitValue(text_[index_]);
    }

    std::string_view text_;
    std::size_t index_ = 0;
    std::int64_t left_;
};

constexpr std::array<Real, 28> computePowersOfTen() {
    std::array<Real, 28> rows{};
    rows[0] = 1;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        rows[i] = rows[i - 1] * 10;
    }
    return rows;
}

/// Exact powers of ten: 10^27 is the last one whose odd factor fits into 64 bits.
constexpr std::array<Real, 28> powersOfTen = computePowersOfTen();

/// base^exponent where the extended format holds it exactly.
std::optional<Real> exactPower(std::uint32_t base, std::uint64_t exponent) {
    if (base == 10) {
        if (exponent >= powersOfTen.size()) {
            return std::nullopt;
        }
        return powersOfTen[static_cast<std::size_t>(exponent)];
    }
    const std::optional<std::uint64_t> power = wordPower(base, exponent);
    return power ? std::optional(static_cast<Real>(*power)) : std::nullopt;
}

/// One rounding of an exact product or quotient.
std::optional<Real> shortValue(const LiteralDigits& literal) {
    if (!literal.significandFits) {
        return std::nullopt;
    }
    if (literal.significand == 0) {
        return 0;
    }
    const auto significand = static_cast<Real>(literal.significand);
    const auto magnitude = static_cast<std::uint64_t>(std::abs(literal.exponent));
    const std::optional<Real> scale = exactPower(literal.base, magnitude);
    if (!scale) {
        return std::nullopt;
    }
    return literal.exponent < 0 ? significand / *scale : significand * *scale;
}

/// Compares the literal with (2 kept + 1) * 2^(exponent - 1), half-way between two extended numbers.
/// @param places the literal lies between base^(places - 1) and base^places
int compareWithHalfway(const LiteralDigits& literal, int places, const Truncation& cut) {
    const UInt128 halfway = shiftLeft({0, cut.kept}, 1) + UInt128{0, 1};
    ExactDigits expected(halfway, cut.exponent - 1, literal.base, places);
    if (expected.tooLarge()) {
        return -1;
    }
    DigitReader digits(literal);
    while (digits.remaining() != 0) {
        std::uint32_t chunk = 0;
        for (int i = 0; i < expected.largestChunk(); ++i) {
            chunk = chunk * literal.base + digits.next();
        }
        const std::uint32_t wanted = expected.next(expected.largestChunk());
        if (chunk != wanted) {
            return chunk < wanted ? -1 : 1;
        }
        if (expected.done()) {
            return digits.anyLeft() ? 1 : 0;
        }
    }
    return -1;
}

}  // namespace

Real literalValue(const LiteralDigits& literal) {
    if (const std::optional<Real> value = shortValue(literal)) {
        return *value;
    }
    DigitReader digits(literal);
    if (digits.remaining() == 0) {
        return 0;
    }
    // The literal lies between base^(place - 1) and base^place; beyond these places it is out of range in any case.
    const std::int64_t place = digits.remaining() + literal.exponent;
    const Real bitsPerDigit = std::log2(static_cast<Real>(literal.base));
    if (static_cast<Real>(place - 1) * bitsPerDigit > 16390) {
        return positiveInfinity;
    }
    if (static_cast<Real>(place) * bitsPerDigit < -16460) {
        return 0;
    }
    const auto places = static_cast<int>(place);
    UInt128 leading;
    int taken = 0;
    constexpr std::uint64_t fullHighWord = UINT64_MAX / 64;
    while (digits.remaining() != 0 && leading.high < fullHighWord) {
        leading =
            UInt128{leading.high * literal.base, 0} + multiply(leading.low, literal.base) + UInt128{0, digits.next()};
        ++taken;
    }
    const int scale = places - taken;
    const Truncation cut = truncate(multiply(normalized(leading, 0), power(literal.base, scale)));
    // The digits left out err by a unit of 2^-122 of the number, the power by one for each unit of its exponent.
    const UInt128 error = {0, (static_cast<std::uint64_t>(std::abs(scale)) + 8) << 7};
    const UInt128 distance = cut.rest > cut.half ? cut.rest - cut.half : cut.half - cut.rest;
    if (distance > error) {
        return toReal(cut, cut.rest > cut.half);
    }
    const int side = compareWithHalfway(literal, places, cut);
    return toReal(cut, side > 0 || (side == 0 && (cut.kept & 1) != 0));
}

}  // namespace calquo
