// The four operations, small powers and the parts of complex numbers, and the rule by which results carry positions.
// z = x + iy, w = u + iv. Every real step of the formulas is checked: an overflow raises 6 ("domain range") at the
// literal that fed it. Sums and products are what the steps leave; everything else is the exact value of its formula,
// rounded once.
#pragma once

#include "values/value.h"

namespace calquo {

/// Makes errors point at a value's literal from now on; a value without one leaves the error position as it is.
void reportErrorsAt(const Value& v);

/// z + w, z - w. The result carries w's positions.
Value add(const Value& z, const Value& w);
Value sub(const Value& z, const Value& w);

/// z w = (xu - yv) + i(yu + xv), always by four products. The result carries w's positions.
Value mul(const Value& z, const Value& w);

/// z / w. The steps of the plain formula over |w|^2 limit it, deliberately without scaling: 22 when |w|^2 is or
/// underflows to 0, 6 when it or a product of parts overflows. The result carries w's positions.
Value div(const Value& z, const Value& w);

/// The one-operand operations below carry their operand's positions.

/// -z and x - iy.
Value neg(const Value& z);
Value conj(const Value& z);

/// z / 100.
Value pct(const Value& z);

/// 1 / z; 22 for 0, and errors over |z|^2 like div's unless z is real.
Value inv(const Value& z);

/// z^2 = (x^2 - y^2) + 2ixy and z^3 = (x^3 - 3xy^2) + i(3x^2y - y^3).
Value sqr(const Value& z);
Value cube(const Value& z);

/// x and y, as real values.
Value real(const Value& z);
Value imag(const Value& z);

/// |z|^2 = x^2 + y^2.
Value norm2(const Value& z);

/// |z|; exact where one part is 0, else 6 when |z|^2 overflows.
Value abs(const Value& z);

/// The principal angle of z in radians, in (-pi, pi]; 0 for 0, and a negative zero counts as zero. 6 for an infinite
/// part.
Value arg(const Value& z);

/// -1, 0 or 1 for a real number; z / |z| for any other.
Value sign(const Value& z);

/// r cos(angle) + i r sin(angle), angle in radians. Both must be real (11). The result carries the angle's positions.
Value polar(const Value& r, const Value& angle);

}  // namespace calquo
