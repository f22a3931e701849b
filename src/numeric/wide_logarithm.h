// Natural logarithm and exponential with some 100 correct bits, so that powers, roots and logarithms of positive
// numbers need only the one rounding at their end and come out exact wherever the exact result is an extended number.
#pragma once

#include "values/wide_float.h"

namespace calquo {

/// A wide number with a sign.
struct SignedWide {
    WideFloat magnitude;  ///< meaningless when zero is set
    bool negative = false;
    bool zero = false;
};

/// ln x for finite positive x, within 2^-100 of itself.
///
/// Method: x = 2^k m with m in [3/4, 3/2); m c = 1 + t exactly, for one of 128 tabulated short c near 1/m, with |t| <
/// 2^-7; ln x = k ln 2 - ln c + (t - t^2/2 + ... + t^17/17). Next to 1, where c = 1 and k = 0, the series alone is the
/// result.
SignedWide wideLogarithm(Real x);

/// e^a for |a| below 16000, within 2^-90 of itself.
///
/// Method: a = k ln 2 + j/128 + s with 0 <= s < 2^-7; e^a = 2^k e^(j/128) (1 + s + ... + s^13/13!), e^(j/128)
/// tabulated.
WideFloat wideExponential(const SignedWide& a);

/// The nearest extended number with its sign.
Real toReal(const SignedWide& a);

}  // namespace calquo
