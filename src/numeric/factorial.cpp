// Gamma function and factorial.
#include "numeric/factorial.h"

#include <array>
#include <cmath>

#include "numeric/checked_real.h"
#include "numeric/checks.h"
#include "numeric/complex_arithmetic.h"
#include "numeric/rounding.h"
#include "numeric/words.h"

namespace calquo {

Real gammaLanczos(Real x) {
    constexpr std::array<Real, 6> coefficients = {76.18009172947146L,  -86.50532032941678L,   24.01409824083091L,
                                                  -1.231739572450155L, 0.001208650973866179L, -5.395239384953e-06L};
    Real sum = 1.000000000190015L;
    Real denominator = x;
    for (const Real coefficient : coefficients) {
        denominator += 1;
        sum += coefficient / denominator;
    }
    const Real shifted = x + 5.5L;
    const Real power = expReal(mulReal(x + 0.5L, lnReal(shifted)));
    return sum * std::sqrt(2 * pi) / x * power * expReal(-shifted);
}

Value fact(const Value& n) {
    requireReal(n, CheckFlags::Report);
    const Value argument = fromWord(toUnsignedWord(n));
    reportErrorsAt(n);
    return Value(round(gammaLanczos(argument.re + 1))).at(n.positions);
}

}  // namespace calquo
