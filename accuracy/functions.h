// The functions whose accuracy is measured, where, and what their exact values are.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "support/big_float.h"

namespace calquo {

enum class Sign { Either, Positive, Negative };

/// Arguments of a sign, 2^low to 2^high, and so far from the offset.
struct Range {
    int low;
    int high;
    Sign sign = Sign::Either;
    int offset = 0;
};

struct MeasuredFunction {
    std::string_view name;
    Range range;
    std::function<void(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr y)> exact;
    Range second{0, 0};  ///< Of the second argument, where there is one.
    bool hasTwoArguments = false;
};

/// Where the functions' formulas are good.
std::span<const MeasuredFunction> measuredFunctions();

/// Where they cancel.
std::span<const MeasuredFunction> cancellingFunctions();

}  // namespace calquo
