// Exponential, logarithms, powers and roots: principal values, exact for positive real numbers wherever the result is,
// else within 0.51 units in the last place; each part of a complex result within that of the larger one.
#pragma once

#include "values/value.h"

namespace calquo {

/// e^z; 9 ("limit exceeded") when x lies outside the limits of expReal. Carries z's positions.
Value exp(const Value& z);

/// Principal logarithm, imaginary part in (-pi, pi]; 14 ("cannot be 0") for 0, 6 for an infinity. Carries z's
/// positions.
Value ln(const Value& z);

/// Logarithm of z to the base b = ln z / ln b; 14 for a z or b of 0, 15 ("cannot be 1") for a base of 1. For positive
/// reals a whole answer is exact. Carries b's positions.
Value logB(const Value& z, const Value& base);

/// logB to the bases 10 and 2. They carry z's positions.
Value log10(const Value& z);
Value log2(const Value& z);

/// z^w = e^(w ln z), principal value. An exact 0 to whatever power is deliberately 0, built without positions. Errors
/// of ln and exp. For positive real z and real w a representable answer is exact. A negative z to the power of a whole
/// k deliberately has the imaginary part |z|^k sin(k pi), with k pi as 80 bits round it. A complex result whose angle
/// passes 2^40 loses a bit for each further one of the angle. Carries w's positions.
Value pow(const Value& z, const Value& w);

/// z^(1/n), principal value: the cube root of a negative number is complex. 22 for n = 0, otherwise like pow. Carries
/// n's positions.
Value root(const Value& z, const Value& degree);

/// The principal roots of degree 2 and 3. They carry z's positions.
Value sqrt(const Value& z);
Value cbrt(const Value& z);

}  // namespace calquo
