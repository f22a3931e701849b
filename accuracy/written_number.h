// Holds a written number against the exact one, with MPFR.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "big_float.h"
#include "format/numeric_format.h"
#include "numeral.h"

namespace calquo {

/// Room for the exact product of any number and any power of a base that its digits are shifted by.
constexpr mpfr_prec_t shiftedBits = 17000;

/// Multiplies by base^places: exactly, unless places are taken away.
inline void shift(mpfr_ptr number, std::uint32_t base, long places) {
    BigFloat power(shiftedBits);
    mpfr_ui_pow_ui(power.get(), base, static_cast<unsigned long>(std::labs(places)), MPFR_RNDN);
    if (places >= 0) {
        mpfr_mul(number, number, power.get(), MPFR_RNDN);
    } else {
        mpfr_div(number, number, power.get(), MPFR_RNDN);
    }
}

/// floor(log x) in the base, for positive x.
inline long exactLeadingPlace(mpfr_srcptr x, std::uint32_t base) {
    long place = std::lround(std::floor(static_cast<double>(mpfr_get_exp(x) - 1) / std::log2(base)));
    BigFloat leading(shiftedBits);
    for (;;) {
        mpfr_set(leading.get(), x, MPFR_RNDN);
        shift(leading.get(), base, -place);
        if (mpfr_cmp_ui(leading.get(), 1) < 0) {
            --place;
        } else if (mpfr_cmp_ui(leading.get(), base) >= 0) {
            ++place;
        } else {
            return place;
        }
    }
}

/// Which digit of a number is the last one written, and how.
struct LastPlace {
    bool isScientific = false;
    long place = 0;  ///< Counted after the decimal mark of the number itself; negative before it.
};

/// The last place of positive x under a word of one of the kinds that write digits.
inline LastPlace lastPlaceOf(mpfr_srcptr x, NumericFormat word, std::uint32_t base) {
    const auto kind = static_cast<FormatKind>(getField(word, field::kind));
    const long fractional = getField(word, field::digits);
    if (kind == FormatKind::Integer) {
        return {};
    }
    if (kind == FormatKind::FixedPoint || kind == FormatKind::Currency) {
        return {false, fractional};
    }
    const long significant = std::max(getField(word, field::significantDigits), 1U) - 1L - exactLeadingPlace(x, base);
    if (kind == FormatKind::Automatic) {
        // |log x| rounds to more than the limit where x^2 is base^(2 limit + 1) or more, or the reciprocal.
        BigFloat square(shiftedBits), bound(shiftedBits);
        mpfr_sqr(square.get(), x, MPFR_RNDN);
        mpfr_ui_pow_ui(bound.get(), base, 2 * getField(word, field::exponentLimit) + 1, MPFR_RNDN);
        const bool isLarge = mpfr_cmp(square.get(), bound.get()) >= 0;
        mpfr_mul(square.get(), square.get(), bound.get(), MPFR_RNDN);
        if (!isLarge && mpfr_cmp_ui(square.get(), 1) > 0) {
            return {false, std::min(significant, fractional)};
        }
    }
    return {true, significant};
}

/// Makes a number whole as the words of Integer ask for.
inline void makeWhole(mpfr_ptr number, NumericFormat word) {
    switch (getField(word, field::truncation)) {
        case 1:
            mpfr_roundeven(number, number);
            return;
        case 2:
            mpfr_floor(number, number);
            return;
        case 3:
            mpfr_ceil(number, number);
            return;
        case 4:
            mpfr_trunc(number, number);
            return;
        default:
            mpfr_round(number, number);
            return;
    }
}

struct WrittenError {
    bool isWrong = false;  ///< Whether any digit is another than that of the exact number, rounded half away from zero.
    double units = 0;      ///< The distance from the exact number, in units of the last place that is written.
};

/// The error of a text written for x under a word of one of the kinds that write digits.
inline WrittenError errorOfWritten(std::string_view text, mpfr_srcptr x, NumericFormat word, std::uint32_t base) {
    BigFloat exact(shiftedBits), rounded(shiftedBits), written(shiftedBits);
    mpfr_set(exact.get(), x, MPFR_RNDN);
    if (getField(word, field::kind) == static_cast<std::uint32_t>(FormatKind::Integer)) {
        makeWhole(exact.get(), word);
    }
    const bool isNegative = mpfr_sgn(exact.get()) < 0;
    mpfr_abs(exact.get(), exact.get(), MPFR_RNDN);
    const LastPlace last = mpfr_zero_p(exact.get()) != 0 ? LastPlace{} : lastPlaceOf(exact.get(), word, base);
    shift(exact.get(), base, last.place);
    mpfr_round(rounded.get(), exact.get());

    const Numeral numeral = numeralFrom(text);
    Numeral digits{base, false, numeral.whole + numeral.fraction, "", 0, 0};
    setTo(written.get(), digits);
    shift(written.get(), base, last.place + numeral.exponent - static_cast<long>(numeral.fraction.size()));

    WrittenError error;
    const bool hasForm = last.isScientific ? numeral.whole.size() == 1 && numeral.whole != "0" : numeral.exponent == 0;
    const bool hasSign = numeral.negative == (isNegative && mpfr_zero_p(rounded.get()) == 0);
    const bool hasGroups = numeral.groupSize == 0 || numeral.groupSize == getField(word, field::groupSize);
    error.isWrong =
        numeral.base != base || !hasForm || !hasGroups || !hasSign || mpfr_equal_p(written.get(), rounded.get()) == 0;
    mpfr_sub(exact.get(), written.get(), exact.get(), MPFR_RNDN);
    error.units = std::fabs(mpfr_get_d(exact.get(), MPFR_RNDN));
    return error;
}

}  // namespace calquo
