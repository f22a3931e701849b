// Exact digits of an extended number in any base, rounded half away from zero at a chosen place.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "values/uint128.h"
#include "values/value.h"

namespace calquo {

/// The digits of a whole number, without leading zeros; none for 0. Long enough for the largest finite number in base 2
/// with every place after the mark that a format can ask for, and uninitialized but for what is used.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): clearing 16 KB would cost more than writing the digits.
class DigitBuffer {
public:
    [[nodiscard]] std::string_view text() const { return {characters_.data(), length_}; }
    [[nodiscard]] int count() const { return static_cast<int>(length_); }

    void clear() { length_ = 0; }
    /// Appends a digit; a leading zero is dropped.
    void append(std::uint32_t digit);
    /// Replaces the content by the digits of a number.
    void assign(UInt128 number, std::uint32_t base);
    /// Adds one to the number.
    void increment(std::uint32_t base);

private:
    std::array<char, 16500> characters_;
    std::size_t length_ = 0;
};

/// The digits of x * base^places for finite positive x, rounded to a whole number, halves away from zero.
/// @param places -16,500 to 16,500, and so that there are no more than 16,500 digits
void roundedDigits(Real x, std::uint32_t base, int places, DigitBuffer& digits);

/// floor(log x) in a base, for finite positive x; it may be one too low at or just above a power of the base.
int leadingPlace(Real x, std::uint32_t base);

}  // namespace calquo
