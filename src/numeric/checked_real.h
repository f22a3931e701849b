// Arithmetic on single extended numbers that reports an overflow instead of returning an infinity.
// Errors are raised at the error position that stands when the operation is called; a NaN flows through silently.
#pragma once

#include "numeric/checks.h"
#include "values/value.h"

namespace calquo {

/// Raises 6 ("domain range") at the error position.
[[noreturn]] void raiseOutOfRange();

/// The number itself; raises 6 when it is an infinity.
inline Real inRange(Real x) {
    if (outOfRange(x)) [[unlikely]] {
        raiseOutOfRange();
    }
    return x;
}

/// a + b; 6 when the result is out of range.
inline Real addReal(Real a, Real b) { return inRange(a + b); }

/// a - b; 6 when the result is out of range.
inline Real subReal(Real a, Real b) { return inRange(a - b); }

/// a b; 6 when the result is out of range.
inline Real mulReal(Real a, Real b) { return inRange(a * b); }

/// a / b; 22 when b is exactly 0, 6 when the result is out of range.
inline Real divReal(Real a, Real b) {
    if (b == 0) [[unlikely]] {
        raise(ErrorCode::DivisionByZero);
    }
    return inRange(a / b);
}

/// -a; 6 when a is out of range.
inline Real negReal(Real a) { return -inRange(a); }

/// |a|; 6 when a is out of range.
inline Real absReal(Real a) { return __builtin_fabsl(inRange(a)); }

/// a a; 6 when the result is out of range.
inline Real sqrReal(Real a) { return inRange(a * a); }

/// 1 / a; errors as divReal.
inline Real recipReal(Real a) { return divReal(1, a); }

/// -1, 0 or 1 as a is below, equal to or above 0; 0 for a NaN; 6 when a is out of range.
Real signReal(Real a);

/// Exponents that expReal takes, deliberately on both sides: a very negative exponent is refused, not flushed to 0.
constexpr Real lowestExponent = -11358.65226L;
constexpr Real highestExponent = 11356.5234L;

/// The exponent itself; 9 ("limit exceeded") outside lowestExponent to highestExponent.
inline Real limitedExponent(Real a) {
    if (a < lowestExponent || a > highestExponent) {
        raise(ErrorCode::LimitExceeded);
    }
    return a;
}

/// e^a for a limited exponent.
Real expReal(Real a);

/// ln a for real a; raises 13 for a below 0, 14 for 0 and 6 for an infinity.
Real lnReal(Real a);

}  // namespace calquo
