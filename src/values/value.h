// The one type of every quantity: a complex number in two 80-bit floats, and where in the line it was written.
#pragma once

#include <cstdint>

namespace calquo {

/// The 80-bit extended float (64-bit mantissa) in which everything is computed.
using Real = long double;

/// Where the evaluated line has the literal that a value comes from: 0-based character indices; -1 where unknown.
struct Positions {
    std::int32_t literalStart = -1;      ///< first character of the literal
    std::int32_t realPartEnd = -1;       ///< just past its real part
    std::int32_t imaginaryPartEnd = -1;  ///< just past the imaginary part of a literal "(re; im)", else -1
    std::int32_t literalEnd = -1;        ///< just past the whole literal

    friend bool operator==(const Positions&, const Positions&) = default;
};

/// A complex number re + i im. A real number has im 0; a unit is its factor in base units; a temperature scale carries
/// its offset in im. There is no type tag.
struct Value {
    Positions positions;
    Real re = 0;
    Real im = 0;

    constexpr Value() = default;
    // Implicit on purpose: formulas read as they are written.
    constexpr Value(Real real, Real imaginary = 0) : re(real), im(imaginary) {}

    /// The same number carrying the position words of another value.
    [[nodiscard]] constexpr Value at(const Positions& words) const {
        Value result = *this;
        result.positions = words;
        return result;
    }
};

}  // namespace calquo
