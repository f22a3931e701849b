// Conversion over checked real steps, in the one order that all results share.
#include "units/conversion.h"

#include "numeric/checked_real.h"
#include "numeric/complex_arithmetic.h"
#include "values/errors.h"

namespace calquo {

Value convert(const Value& x, const Value& from, const Value& to) {
    if (!(x.im == 0)) {
        raise(ErrorCode::ComplexNotAllowed, x.positions.literalEnd);
    }
    reportErrorsAt(from);
    Real number = subReal(x.re, from.im);
    reportErrorsAt(to);
    number = divReal(number, to.re);
    number = mulReal(from.re, number);
    return {addReal(to.im, number)};
}

}  // namespace calquo
