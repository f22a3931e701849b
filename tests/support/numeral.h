// Numbers as the language writes them, taken apart, and their values by MPFR.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>

#include "support/big_float.h"
#include "values/extended.h"

namespace calquo {

/// "-16'FF.8@-A".
struct Numeral {
    std::uint32_t base = 10;
    bool negative = false;
    std::string whole;
    std::string fraction;
    long exponent = 0;  ///< A power of the base; written in the base, too.
};

inline char digitOf(std::uint32_t value) { return "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[value]; }

inline std::string textOf(const Numeral& numeral) {
    std::string text = (numeral.negative ? "-" : "") + std::to_string(numeral.base) + "'" + numeral.whole;
    if (!numeral.fraction.empty()) {
        text += "." + numeral.fraction;
    }
    if (numeral.exponent != 0) {
        text += numeral.exponent < 0 ? "@-" : "@";
        std::string digits;
        for (auto rest = static_cast<unsigned long>(std::labs(numeral.exponent)); rest != 0; rest /= numeral.base) {
            digits += digitOf(static_cast<std::uint32_t>(rest % numeral.base));
        }
        text.append(digits.rbegin(), digits.rend());
    }
    return text;
}

/// Takes apart what has been written with the usual marks. Throws std::runtime_error for what is no number.
inline Numeral numeralFrom(std::string_view text) {
    Numeral numeral;
    std::size_t i = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    numeral.negative = text.starts_with('-');
    if (const std::size_t mark = text.find('\''); mark != std::string_view::npos) {
        numeral.base = static_cast<std::uint32_t>(std::strtoul(std::string(text.substr(i)).c_str(), nullptr, 10));
        i = mark + 1;
    }
    constexpr std::uint32_t firstBaseWithDigitE = 15;
    std::string* digits = &numeral.whole;
    for (; i < text.size(); ++i) {
        if (text[i] == '@' || (text[i] == 'e' && numeral.base < firstBaseWithDigitE)) {
            numeral.exponent =
                std::strtol(std::string(text.substr(i + 1)).c_str(), nullptr, static_cast<int>(numeral.base));
            break;
        }
        if (text[i] == '.') {
            digits = &numeral.fraction;
        } else if ((text[i] >= '0' && text[i] <= '9') || (text[i] >= 'A' && text[i] <= 'Z')) {
            *digits += text[i];
        } else if (text[i] != ',') {
            break;
        }
    }
    if (numeral.whole.empty()) {
        throw std::runtime_error("no number: " + std::string(text));
    }
    return numeral;
}

/// Sets a number to the one nearest to the numeral within its precision, ties to even, and returns whether that is
/// less, the same or more.
inline int setTo(mpfr_ptr number, const Numeral& numeral) {
    const std::string text =
        (numeral.negative ? "-" : "") + numeral.whole + "." + numeral.fraction + "@" + std::to_string(numeral.exponent);
    return mpfr_strtofr(number, text.c_str(), nullptr, static_cast<int>(numeral.base), MPFR_RNDN);
}

/// The extended number nearest to the numeral, ties to even; denormals and infinity included.
inline Real nearestReal(const Numeral& numeral) {
    constexpr mpfr_prec_t mantissaBits = 64;
    // MPFR counts exponents from a mantissa below 1, and the lowest bit is a number's own.
    const mpfr_exp_t lowest = mpfr_get_emin();
    const mpfr_exp_t highest = mpfr_get_emax();
    mpfr_set_emin(ExtendedBits::smallestExponent + 1);
    mpfr_set_emax(ExtendedBits::largestExponent + mantissaBits);
    BigFloat number(mantissaBits);
    mpfr_subnormalize(number.get(), setTo(number.get(), numeral), MPFR_RNDN);
    const Real value = mpfr_get_ld(number.get(), MPFR_RNDN);
    mpfr_set_emin(lowest);
    mpfr_set_emax(highest);
    return value;
}

}  // namespace calquo
