// Natural logarithm and exponential with some 100 correct bits, so that powers, roots and logarithms of positive
// numbers need only the one rounding at their end and come out exact wherever the exact result is an extended number.
#pragma once

#include "numeric/signed_wide.h"

namespace calquo {

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

/// ln a for a > 0, within 2^-100 of itself or 2^-110, whichever is more.
SignedWide wideLogarithm(const SignedWide& a);

/// ln(1 + a) for a > -1, within 2^-100 of itself; next to -1 as exactly as 1 + a is known, to 2^-127.
SignedWide wideLogarithmOfOnePlus(const SignedWide& a);

/// e^a for |a| up to 2^28, within 2^-105 + |a| 2^-119 of itself.
SignedWide steepExponential(const SignedWide& a);

/// e^a - 1 for a up to 2^28, within 2^-98 of itself for a up to 2^20, and -1 from -2^28 downwards.
SignedWide wideExponentialMinusOne(const SignedWide& a);

}  // namespace calquo
