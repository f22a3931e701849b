// Products of whole numbers of thousands of words, through Fourier transforms that are exact in the end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace calquo {

/// A whole number of any size, lowest word first.
using LongNatural = std::vector<std::uint64_t>;

/// Multiplies long numbers by transforms of a common length, in time n log n. The transform of a number can serve many
/// products.
///
/// Two numbers of N digits of s bits are multiplied as polynomials modulo x^N + 1, at x = 2^s. Their digits go from
/// -2^(s-1) to 2^(s-1). Modulo x^(N/2) - i, one of the two factors of x^N + 1, a real polynomial has N/2 complex
/// coefficients and is known as a whole. With digits of the Euclidean norms |a| and |b|, the coefficients of the
/// product come out less than 12 log2(N) |a| |b| / 2^53 off (see R. P. Brent, C. Percival and P. Zimmermann, Error
/// bounds on complex floating-point multiplication, 2007). For s = (45 - log2(N)) / 2 that is less than 1/2 for all N
/// up to 2^40, so that rounding yields the coefficients themselves.
class LongMultiplier {
public:
    /// For products with room in so many words.
    explicit LongMultiplier(std::size_t words);

    /// Two floating-point numbers to compute with at once; the heap of 32-bit Windows aligns to 8 bytes only.
    using Lanes = double __attribute__((vector_size(16), aligned(8)));
    /// Two complex numbers.
    struct Points {
        Lanes re;
        Lanes im;
    };
    struct Root {
        double re;
        double im;
    };
    struct Spectrum {
        int logLength;  ///< log2 N
        std::vector<Points> points;
    };

    /// The transform of a number for products with this room, in words, where the number must fit, too.
    [[nodiscard]] Spectrum transform(std::span<const std::uint64_t> number, std::size_t room) const;

    /// The words [first, first + count) of a product, from spectra for the same room, which must have these words. What
    /// does not fit into the room is subtracted at its lower end instead.
    [[nodiscard]] LongNatural words(Spectrum a, const Spectrum& b, std::size_t first, std::size_t count) const;

    /// The whole product, without zero words on top.
    [[nodiscard]] LongNatural multiply(std::span<const std::uint64_t> a, std::span<const std::uint64_t> b) const;

private:
    /// Roots of unity by the bit-reversed fraction of a half turn: 1, i, then the eighth roots of the upper half plane,
    /// and so on. Node k of level j in the tree of factors of x^n - 1 is x^(n/2^j) - roots[k]^2, and its two factors
    /// are those with roots[k] and -roots[k] in place of that square, at 2k and 2k + 1. So x^n - i is node 2.
    std::vector<Root> roots_;
};

}  // namespace calquo
