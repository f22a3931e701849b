// The functions whose accuracy is measured, where, and what their exact values are.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "support/big_float.h"

namespace calquo {

/// Arguments 2^low to 2^high, also negative ones where the function has values for them.
struct Range {
    int low;
    int high;
    bool negativeToo = true;
};

struct MeasuredFunction {
    std::string_view name;
    Range range;
    std::function<void(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr y)> exact;
    Range second{0, 0, false};  ///< Of the second argument, where there is one.
    bool hasTwoArguments = false;
};

std::span<const MeasuredFunction> measuredFunctions();

}  // namespace calquo
