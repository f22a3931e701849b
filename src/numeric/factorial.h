// The factorial, through an approximation of the gamma function.
#pragma once

#include "values/value.h"

namespace calquo {

/// The gamma function of x > 0 by the series of C. Lanczos (1964) with g = 5 and six terms; relative error below
/// 2e-10. Raises 9 ("limit exceeded") from about x = 1546 on, where (x + 1/2) ln(x + 11/2) leaves the limits of
/// expReal.
Real gammaLanczos(Real x);

/// n!, the rounded gammaLanczos(n + 1): whole for every n and exact for small ones, else with the approximation's
/// error. Raises 11, 6, 12 and 13 for what is not an unsigned word, and deliberately 9 from n = 1545 on. Carries n's
/// positions.
Value fact(const Value& n);

}  // namespace calquo
