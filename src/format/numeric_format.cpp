// Checked setting of a format's fields.
#include "format/numeric_format.h"

#include "values/errors.h"

namespace calquo {

void setField(NumericFormat& word, NumericFormat mask, std::uint32_t value) {
    if (value > largestIn(mask)) {
        raise(ErrorCode::InternalFault);
    }
    word = (word & ~mask) | value << std::countr_zero(mask);
}

}  // namespace calquo
