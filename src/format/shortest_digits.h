// How many digits a number needs to be read back as the same.
#pragma once

#include <cstdint>

#include "values/value.h"

namespace calquo {

/// The fewest significant digits of a finite x in a base of 2 to 36 that read back as x; 1 for 0. In base 10 there are
/// never more than 21.
int digitsToReadBack(Real x, std::uint32_t base);

}  // namespace calquo
