// Where random arguments come from, and how they are written.
#pragma once

#include <complex>
#include <optional>
#include <string>

#include "support/random_reals.h"
#include "values/value.h"

namespace calquo {

enum class Signs { Either, Positive, Negative };

/// Numbers 2^low to 2^high of a sign, added to a centre; the power of two is uniform, and so is the mantissa, but a
/// quarter of the mantissas have few bits.
struct Range {
    int low = 0;
    int high = 0;  ///< Not above low for the number 0 alone.
    Signs sign = Signs::Either;
    bool isWhole = false;  ///< Truncated.
    Real centre = 0;
    const char* centreName = "";
    Signs centreSign = Signs::Either;
    int multiples = 1;  ///< The centre is multiplied by a random whole number from 1 to this.

    [[nodiscard]] Real pick(RandomReals& random) const;
    [[nodiscard]] std::string text() const;
};

/// Real arguments, or complex ones.
struct Region {
    Region(const Range& real) : re(real) {}
    Region(const Range& real, const Range& imaginary) : re(real), im(imaginary) {}

    [[nodiscard]] std::complex<Real> pick(RandomReals& random) const;
    [[nodiscard]] std::string text() const;

    Range re;
    std::optional<Range> im;
};

/// A number with all its digits, in base 16.
std::string exactly(Real x);
/// An operand of the language.
std::string exactly(const std::complex<Real>& z);

}  // namespace calquo
