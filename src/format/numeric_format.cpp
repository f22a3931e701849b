// Checked setting of a format's fields.
#include "format/numeric_format.h"

#include "values/errors.h"

namespace calquo {

void setField(NumericFormat& word, NumericFormat mask, std::uint32_t value) {
    const std::uint32_t largest = mask >> std::countr_zero(mask);
    if ((value & ~largest) != 0) {
        raise(ErrorCode::InternalFault);
    }
    word = (word & ~mask) | value << std::countr_zero(mask);
}

}  // namespace calquo
