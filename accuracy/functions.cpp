// The tables. The first one's ranges leave out where a value is complex or not finite, and where the function's formula
// cancels, which is what the other table has.
#include "functions.h"

#include <vector>

namespace calquo {
namespace {

using MpfrFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

/// One of MPFR's own functions.
auto of(MpfrFunction function) {
    return [function](mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr) { function(result, x, MPFR_RNDN); };
}

/// A function of the reciprocal.
auto ofInverse(MpfrFunction function) {
    return [function](mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr) {
        mpfr_ui_div(result, 1, x, MPFR_RNDN);
        function(result, result, MPFR_RNDN);
    };
}

void power(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr y) { mpfr_pow(result, x, y, MPFR_RNDN); }

void root(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr degree) {
    BigFloat exponent;
    mpfr_ui_div(exponent.get(), 1, degree, MPFR_RNDN);
    mpfr_pow(result, x, exponent.get(), MPFR_RNDN);
}

void logarithmToBase(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr base) {
    BigFloat ofBase;
    mpfr_log(ofBase.get(), base, MPFR_RNDN);
    mpfr_log(result, x, MPFR_RNDN);
    mpfr_div(result, result, ofBase.get(), MPFR_RNDN);
}

constexpr Range everywhere{-16000, 16000};
constexpr Range positive{-16000, 16000, Sign::Positive};
constexpr Range everyday{-4, 7};
constexpr Range squaresStayFinite{1, 8000, Sign::Positive};

std::vector<MeasuredFunction> makeMeasured() {
    return {
        {"sqrt", positive, of(mpfr_sqrt)},
        {"cbrt", positive, of(mpfr_cbrt)},
        {"exp", {-4, 13}, of(mpfr_exp)},
        {"ln", positive, of(mpfr_log)},
        {"ln", {-2, 1, Sign::Positive}, of(mpfr_log)},
        {"lg", positive, of(mpfr_log2)},
        {"log", positive, of(mpfr_log10)},
        {"log", {-2, 1, Sign::Positive}, of(mpfr_log10)},
        {"logB", positive, logarithmToBase, {1, 100, Sign::Positive}, true},
        {"pow", {-100, 100, Sign::Positive}, power, {-40, 7}, true},
        {"root", positive, root, {1, 6, Sign::Positive}, true},
        {"sin", everywhere, of(mpfr_sin)},
        {"sin", everyday, of(mpfr_sin)},
        {"cos", everywhere, of(mpfr_cos)},
        {"cos", everyday, of(mpfr_cos)},
        {"tan", {-16000, 0}, of(mpfr_tan)},
        {"cot", {-16000, 0}, of(mpfr_cot)},
        {"sec", everyday, of(mpfr_sec)},
        {"csc", everyday, of(mpfr_csc)},
        {"aSin", {-8000, -1}, of(mpfr_asin)},
        {"aCos", {-8000, -1}, of(mpfr_acos)},
        {"aTan", {-8000, 8000}, of(mpfr_atan)},
        {"aCot", {-8000, 8000}, ofInverse(mpfr_atan)},
        {"aSec", {1, 8000}, ofInverse(mpfr_acos)},
        {"aCsc", {1, 8000}, ofInverse(mpfr_asin)},
        {"sinH", {0, 13}, of(mpfr_sinh)},
        {"cosH", {-4, 13}, of(mpfr_cosh)},
        {"tanH", {0, 12}, of(mpfr_tanh)},
        {"cscH", {0, 13}, of(mpfr_csch)},
        {"secH", {-4, 13}, of(mpfr_sech)},
        {"cotH", {0, 12}, of(mpfr_coth)},
        {"aSinH", squaresStayFinite, of(mpfr_asinh)},
        {"aCosH", squaresStayFinite, of(mpfr_acosh)},
        {"aTanH", {-3, -1}, of(mpfr_atanh)},
        {"aCscH", {-8000, -1, Sign::Positive}, ofInverse(mpfr_asinh)},
        {"aSecH", {-8000, -1, Sign::Positive}, ofInverse(mpfr_acosh)},
        {"aCotH", {1, 3}, ofInverse(mpfr_atanh)},
    };
}

/// Small arguments of sinH = (e^x - e^-x) / 2 and its kin, the poles of tan = sin 2x / (cos 2x + 1), and what is close
/// to 1 in front of, or behind, the logarithm of an inverse function.
std::vector<MeasuredFunction> makeCancelling() {
    constexpr Range small{-30, 0};
    return {
        {"sinH", small, of(mpfr_sinh)},
        {"tanH", small, of(mpfr_tanh)},
        {"cscH", small, of(mpfr_csch)},
        {"cotH", small, of(mpfr_coth)},
        {"aSinH", small, of(mpfr_asinh)},
        {"aSinH", {0, 20, Sign::Negative}, of(mpfr_asinh)},
        {"aCosH", {-30, 0, Sign::Positive, 1}, of(mpfr_acosh)},
        {"aTanH", {-30, -3}, of(mpfr_atanh)},
        {"aCotH", {3, 30}, ofInverse(mpfr_atanh)},
        {"tan", everyday, of(mpfr_tan)},
        {"cot", everyday, of(mpfr_cot)},
    };
}

}  // namespace

std::span<const MeasuredFunction> measuredFunctions() {
    static const std::vector<MeasuredFunction> table = makeMeasured();
    return table;
}

std::span<const MeasuredFunction> cancellingFunctions() {
    static const std::vector<MeasuredFunction> table = makeCancelling();
    return table;
}

}  // namespace calquo
