// The functions whose accuracy is measured, where, and what their exact values are.
#pragma once

#include <mpfr.h>

#include <functional>
#include <span>
#include <string_view>

namespace calquo {

/// Exact enough for any argument: MPFR rounds correctly, and compositions lose a few of these bits.
constexpr mpfr_prec_t referenceBits = 400;

/// A number of MPFR's, ended with its scope.
class BigFloat {
public:
    BigFloat() { mpfr_init2(number_, referenceBits); }
    ~BigFloat() { mpfr_clear(number_); }
    BigFloat(const BigFloat&) = delete;
    BigFloat& operator=(const BigFloat&) = delete;

    mpfr_ptr get() { return number_; }
    mpfr_srcptr get() const { return number_; }

private:
    mpfr_t number_;
};

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
