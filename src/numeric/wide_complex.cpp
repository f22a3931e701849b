// Square roots of wide complex numbers.
#include "numeric/wide_complex.h"

#include <limits>

namespace calquo {

WideComplex squareRoot(const WideComplex& z) {
    if (z.im.zero) {
        const SignedWide root = squareRoot(absolute(z.re));
        return signOf(z.re) < 0 ? WideComplex{0, root} : WideComplex{root, 0};
    }
    // The larger part of the root is s = sqrt((|x| + |z|) / 2), the other one y / 2s: nothing cancels.
    const SignedWide larger = squareRoot(scaled(absolute(z.re) + squareRoot(squaredModulus(z)), -1));
    const SignedWide smaller = scaled(absolute(z.im) * reciprocal(larger), -1);
    WideComplex root = signOf(z.re) < 0 ? WideComplex{smaller, larger} : WideComplex{larger, smaller};
    root.im.negative = z.im.negative;
    return root;
}

Value notANumber(const Value& z) {
    constexpr Real quiet = std::numeric_limits<Real>::quiet_NaN();
    return Value(quiet, quiet).at(z.positions);
}

}  // namespace calquo
