// Real numbers of MPFR's that know how far they may be from what they stand for, so that a result is either proved to
// as many bits as are wanted or computed again with more.
#pragma once

#include "big_float.h"
#include "values/value.h"

namespace calquo {

/// Thrown where the error of a number leaves open which way a formula goes, as at a branch cut.
struct Undecided {};

/// A number and a power of two that bounds its distance from the exact one. Exact numbers stay so as long as no
/// operation rounds: 0 times anything is exactly 0.
class Tracked {
public:
    /// The bits to which operations round; at least 64, so that extended numbers are exact.
    static inline mpfr_prec_t bits = referenceBits;

    Tracked(Real number = 0);
    Tracked(const Tracked& other);
    Tracked& operator=(const Tracked& other);
    ~Tracked() { mpfr_clear(number_); }

    [[nodiscard]] mpfr_srcptr get() const { return number_; }
    /// |number| < 2^exponent(); far below everything for 0.
    [[nodiscard]] long exponent() const;
    /// The distance is at most 2^error().
    [[nodiscard]] long error() const { return error_; }
    [[nodiscard]] bool isExact() const;
    [[nodiscard]] bool isZero() const { return isExact() && mpfr_zero_p(number_) != 0; }
    [[nodiscard]] bool mayBeZero() const;
    /// -1, 0 or 1. Throws Undecided.
    [[nodiscard]] int sign() const;

    friend Tracked operator+(const Tracked& a, const Tracked& b);
    friend Tracked operator-(const Tracked& a, const Tracked& b);
    friend Tracked operator*(const Tracked& a, const Tracked& b);
    /// Throws Undecided when b may be 0.
    friend Tracked operator/(const Tracked& a, const Tracked& b);
    friend Tracked operator-(const Tracked& a);
    /// Throws Undecided where that cannot be told.
    friend bool operator<(const Tracked& a, const Tracked& b) { return (a - b).sign() < 0; }
    friend bool operator>(const Tracked& a, const Tracked& b) { return b < a; }

    friend Tracked abs(const Tracked& a) { return a.sign() < 0 ? -a : a; }
    friend Tracked sqrt(const Tracked& a);
    friend Tracked exp(const Tracked& a);
    friend Tracked log(const Tracked& a);
    friend Tracked sin(const Tracked& a);
    friend Tracked cos(const Tracked& a);
    friend Tracked sinh(const Tracked& a);
    friend Tracked cosh(const Tracked& a);
    /// In (-pi, pi]; 0 for (0, 0).
    friend Tracked atan2(const Tracked& y, const Tracked& x);
    friend Tracked hypot(const Tracked& x, const Tracked& y);
    /// A whole number next to a, itself exact.
    friend Tracked someWholeNextTo(const Tracked& a);

    static Tracked pi();

private:
    /// Takes over a rounded result with the error that its operands bring into it; `ternary` is MPFR's.
    Tracked& settle(int ternary, long broughtIn);

    mpfr_t number_{};
    long error_ = 0;
};

}  // namespace calquo
