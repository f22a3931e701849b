// MPFR's numbers as objects.
#pragma once

#include <mpfr.h>

namespace calquo {

/// Exact enough for any function: MPFR rounds correctly, and compositions lose a few of these bits.
constexpr mpfr_prec_t referenceBits = 400;

/// A number of MPFR's, ended with its scope.
class BigFloat {
public:
    explicit BigFloat(mpfr_prec_t bits = referenceBits) { mpfr_init2(number_, bits); }
    ~BigFloat() { mpfr_clear(number_); }
    BigFloat(const BigFloat&) = delete;
    BigFloat& operator=(const BigFloat&) = delete;

    mpfr_ptr get() { return number_; }
    mpfr_srcptr get() const { return number_; }

private:
    mpfr_t number_{};
};

}  // namespace calquo
