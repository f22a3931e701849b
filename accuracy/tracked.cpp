// Each operation rounds once and bounds what the errors of its operands become by the derivative; the constants added
// to the exponents are generous, since only the order of magnitude matters.
#include "tracked.h"

#include <algorithm>

namespace calquo {
namespace {

/// The exponent of 0, and of no error; sums of a few such exponents stay far below those of numbers.
constexpr long nothing = -(1L << 50);

/// The exponent of what is too large even for MPFR.
constexpr long everything = 1L << 50;

long exponentOf(mpfr_srcptr number) {
    return mpfr_regular_p(number) != 0 ? mpfr_get_exp(number) : mpfr_zero_p(number) != 0 ? nothing : everything;
}

}  // namespace

Tracked::Tracked(Real number) : error_(nothing) {
    mpfr_init2(number_, bits);
    mpfr_set_ld(number_, number + 0, MPFR_RNDN);
}

Tracked::Tracked(const Tracked& other) : error_(other.error_) {
    mpfr_init2(number_, mpfr_get_prec(other.number_));
    mpfr_set(number_, other.number_, MPFR_RNDN);
}

Tracked& Tracked::operator=(const Tracked& other) {
    if (this != &other) {
        mpfr_set_prec(number_, mpfr_get_prec(other.number_));
        mpfr_set(number_, other.number_, MPFR_RNDN);
        error_ = other.error_;
    }
    return *this;
}

Tracked& Tracked::settle(int ternary, long broughtIn) {
    const long rounding = ternary == 0 ? nothing : exponentOf(number_) - mpfr_get_prec(number_);
    error_ = std::max({nothing, rounding + 1, broughtIn + 1});
    if (isExact()) {
        error_ = nothing;
    }
    if (mpfr_zero_p(number_) != 0) {
        mpfr_set_zero(number_, 1);
    }
    return *this;
}

long Tracked::exponent() const { return exponentOf(number_); }

bool Tracked::isExact() const { return error_ < nothing / 2; }

bool Tracked::mayBeZero() const { return isExact() ? mpfr_zero_p(number_) != 0 : exponent() <= error_ + 1; }

int Tracked::sign() const {
    if (isZero()) {
        return 0;
    }
    if (mayBeZero()) {
        throw Undecided();
    }
    return mpfr_sgn(number_);
}

Tracked operator+(const Tracked& a, const Tracked& b) {
    Tracked r;
    return r.settle(mpfr_add(r.number_, a.number_, b.number_, MPFR_RNDN), std::max(a.error_, b.error_) + 1);
}

Tracked operator-(const Tracked& a, const Tracked& b) { return a + -b; }

Tracked operator*(const Tracked& a, const Tracked& b) {
    Tracked r;
    return r.settle(mpfr_mul(r.number_, a.number_, b.number_, MPFR_RNDN),
                    std::max({a.exponent() + b.error_, b.exponent() + a.error_, a.error_ + b.error_}) + 2);
}

Tracked operator/(const Tracked& a, const Tracked& b) {
    static_cast<void>(b.sign());
    Tracked r;
    const int ternary = mpfr_div(r.number_, a.number_, b.number_, MPFR_RNDN);
    return r.settle(ternary, std::max(a.error_, r.exponent() + b.error_) - b.exponent() + 3);
}

Tracked operator-(const Tracked& a) {
    Tracked r(a);
    mpfr_neg(r.number_, r.number_, MPFR_RNDN);
    return r.settle(0, a.isExact() ? nothing : a.error_ - 1);
}

Tracked sqrt(const Tracked& a) {
    Tracked r;
    if (a.sign() == 0) {
        return r;
    }
    const int ternary = mpfr_sqrt(r.number_, a.number_, MPFR_RNDN);
    return r.settle(ternary, a.error_ - r.exponent() + 2);
}

Tracked exp(const Tracked& a) {
    if (a.error_ > 0) {
        throw Undecided();
    }
    Tracked r;
    const int ternary = mpfr_exp(r.number_, a.number_, MPFR_RNDN);
    return r.settle(ternary, r.exponent() + a.error_ + 2);
}

Tracked log(const Tracked& a) {
    static_cast<void>(a.sign());
    Tracked r;
    return r.settle(mpfr_log(r.number_, a.number_, MPFR_RNDN), a.error_ - a.exponent() + 3);
}

Tracked sin(const Tracked& a) {
    Tracked r;
    return r.settle(mpfr_sin(r.number_, a.number_, MPFR_RNDN), a.error_);
}

Tracked cos(const Tracked& a) {
    Tracked r;
    return r.settle(mpfr_cos(r.number_, a.number_, MPFR_RNDN), a.error_);
}

Tracked sinh(const Tracked& a) {
    if (a.error_ > 0) {
        throw Undecided();
    }
    Tracked r;
    const int ternary = mpfr_sinh(r.number_, a.number_, MPFR_RNDN);
    return r.settle(ternary, std::max(r.exponent(), 0L) + a.error_ + 3);
}

Tracked cosh(const Tracked& a) {
    if (a.error_ > 0) {
        throw Undecided();
    }
    Tracked r;
    const int ternary = mpfr_cosh(r.number_, a.number_, MPFR_RNDN);
    return r.settle(ternary, r.exponent() + a.error_ + 3);
}

Tracked atan2(const Tracked& y, const Tracked& x) {
    if (x.isZero() && y.isZero()) {
        return {};
    }
    const long modulus = std::max(x.exponent(), y.exponent());
    const long error = std::max(x.error_, y.error_);
    // On the left of 0 the side of the cut must be known.
    if (modulus <= error + 2 || (y.mayBeZero() && !y.isZero() && x.sign() < 0)) {
        throw Undecided();
    }
    Tracked r;
    return r.settle(mpfr_atan2(r.number_, y.number_, x.number_, MPFR_RNDN), error - modulus + 3);
}

Tracked hypot(const Tracked& x, const Tracked& y) {
    if (x.isZero() || y.isZero()) {
        return abs(x.isZero() ? y : x);
    }
    return sqrt(x * x + y * y);
}

Tracked someWholeNextTo(const Tracked& a) {
    Tracked r;
    mpfr_rint(r.number_, a.number_, MPFR_RNDN);
    return r.settle(0, nothing);
}

Tracked Tracked::pi() {
    Tracked r;
    return r.settle(mpfr_const_pi(r.number_, MPFR_RNDN), nothing);
}

}  // namespace calquo
