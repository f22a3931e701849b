// Circular and hyperbolic functions of complex numbers and their inverses; angles in radians.
// Every result carries its operand's positions. Inverse functions give principal values and have no domain errors of
// their own: outside the real domain they are complex. Errors are those of the steps: 6 for an overflow, 9 beyond the
// limits of expReal, 22 at a pole, 14 where a logarithm meets 0. Values are those of the formulas, each part within
// 0.51 units in the last place of the larger one.
#pragma once

#include "values/value.h"

namespace calquo {

/// sin z = sin x cosh y + i cos x sinh y.
Value sin(const Value& z);
/// cos z = cos x cosh y - i sin x sinh y.
Value cos(const Value& z);
/// tan z = (sin 2x + i sinh 2y) / (cos 2x + cosh 2y); 22 within 2 units in the last place of an odd multiple of pi/2.
Value tan(const Value& z);
/// 1 / tan z, 1 / cos z, 1 / sin z.
Value cot(const Value& z);
Value sec(const Value& z);
Value csc(const Value& z);

/// sinh z = (e^z - e^-z) / 2.
Value sinH(const Value& z);
/// cosh z = (e^z + e^-z) / 2.
Value cosH(const Value& z);
/// tanh z = (e^z - e^-z) / (e^z + e^-z).
Value tanH(const Value& z);
/// 1 / tanh z, 1 / cosh z, 1 / sinh z.
Value cotH(const Value& z);
Value secH(const Value& z);
Value cscH(const Value& z);

/// asin z = -i ln(iz + sqrt(1 - z^2)).
Value aSin(const Value& z);
/// acos z = pi/2 - asin z.
Value aCos(const Value& z);
/// atan z = (ln(1 + iz) - ln(1 - iz)) / 2i.
Value aTan(const Value& z);
/// atan, acos and asin of 1 / z.
Value aCot(const Value& z);
Value aSec(const Value& z);
Value aCsc(const Value& z);

/// asinh z = ln(z + sqrt(z^2 + 1)).
Value aSinH(const Value& z);
/// acosh z = ln(z + sqrt(z^2 - 1)): of negative real parts it is the one with a negative real part.
Value aCosH(const Value& z);
/// atanh z = ln((1 + z) / (1 - z)) / 2.
Value aTanH(const Value& z);
/// acoth z = ln((z + 1) / (z - 1)) / 2.
Value aCotH(const Value& z);
/// acosh and asinh of 1 / z, by the same formulas.
Value aSecH(const Value& z);
Value aCscH(const Value& z);

}  // namespace calquo
