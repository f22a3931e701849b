// The digits of a binary number in any base, exactly, from a given place on, as many as are asked for.
#pragma once

#include <cstdint>

#include "values/wide_natural.h"

namespace calquo {

/// Generates the digits of mantissa * 2^exponent (mantissa other than 0) in a base of 2 to 36, the first one standing
/// for base^(places - 1). The number should be near base^places: within the range of extended numbers, |places| below
/// 16,500.
class ExactDigits {
public:
    ExactDigits(UInt128 mantissa, int exponent, std::uint32_t base, int places);

    /// Whether the number is base^places or more, so that its digits do not fit. Asked before the first digit.
    [[nodiscard]] bool tooLarge() const { return compare(rest_, unit_) >= 0; }

    /// Most digits that one call of next can give: base^largestChunk is at most 2^31.
    [[nodiscard]] int largestChunk() const { return largestChunk_; }

    /// The next count digits as one number, count at most largestChunk.
    std::uint32_t next(int count);

    /// Whether only zeros follow.
    [[nodiscard]] bool done() const { return rest_.isZero(); }

    /// Whether what follows the digits given so far is half a unit of the last one or more. Ends the generation.
    bool restIsHalfOrMore();

private:
    std::uint32_t base_;
    int largestChunk_;
    // What is left is rest / unit, a fraction of the last digit given.
    WideNatural rest_;
    WideNatural unit_;
};

}  // namespace calquo
