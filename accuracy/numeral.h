// Numbers as the language writes them, taken apart, and their values by MPFR.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "big_float.h"
#include "values/extended.h"

namespace calquo {

/// "-16'FF.8@-A".
struct Numeral {
    std::uint32_t base = 10;
    bool negative = false;
    std::string whole;
    std::string fraction;
    long exponent = 0;          ///< A power of the base; written in the base, too.
    std::size_t groupSize = 0;  ///< Of the digits between group marks; 0 without any.
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

/// The value of a digit in a base. Throws std::runtime_error for another character.
inline std::uint32_t valueOf(char digit, std::uint32_t base) {
    std::uint32_t value = base;
    if (digit >= '0' && digit <= '9') {
        value = static_cast<std::uint32_t>(digit - '0');
    } else if (digit >= 'A' && digit <= 'Z') {
        value = static_cast<std::uint32_t>(digit - 'A') + 10;
    }
    if (value >= base) {
        throw std::runtime_error("no digit in base " + std::to_string(base) + ": " + std::string(1, digit));
    }
    return value;
}

/// Throws std::runtime_error for anything but digits that give less than 2^32.
inline std::uint32_t wholeNumberFrom(std::string_view digits, std::uint32_t base) {
    std::uint64_t number = 0;
    for (const char digit : digits) {
        number = number * base + valueOf(digit, base);
        if (number >> 32 != 0) {
            throw std::runtime_error("too large: " + std::string(digits));
        }
    }
    if (digits.empty()) {
        throw std::runtime_error("no digits");
    }
    return static_cast<std::uint32_t>(number);
}

/// The digits without their group marks. All groups have one size, but for the outermost one, which may be smaller: the
/// first, or after the decimal mark the last. Throws std::runtime_error where there are no digits, or other groups.
inline std::string digitsOf(std::string_view text, bool afterMark, Numeral& numeral) {
    std::vector<std::size_t> groups(1);
    std::string digits;
    for (const char character : text) {
        if (character == ',') {
            groups.push_back(0);
        } else {
            valueOf(character, numeral.base);
            digits += character;
            ++groups.back();
        }
    }
    if (afterMark) {
        std::reverse(groups.begin(), groups.end());
    }
    if (groups.size() > 1 && numeral.groupSize == 0) {
        numeral.groupSize = groups.back();
    }
    const bool hasOneSize = groups.size() == 1 || std::all_of(groups.begin() + 1, groups.end(), [&](std::size_t group) {
                                return group == numeral.groupSize;
                            });
    if (groups.front() == 0 || !hasOneSize || (groups.size() > 1 && groups.front() > numeral.groupSize)) {
        throw std::runtime_error("no digits, or no groups: " + std::string(text));
    }
    return digits;
}

/// Takes apart what has been written with the usual marks. Throws std::runtime_error for what is no number, or more.
inline Numeral numeralFrom(std::string_view text) {
    constexpr std::uint32_t firstBaseWithDigitE = 15;
    Numeral numeral;
    numeral.negative = text.starts_with('-');
    std::string_view rest = text.substr(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
    if (const std::size_t mark = rest.find('\''); mark != std::string_view::npos) {
        numeral.base = wholeNumberFrom(rest.substr(0, mark), 10);
        rest = rest.substr(mark + 1);
    }
    const std::size_t exponentMark = rest.find_first_of(numeral.base < firstBaseWithDigitE ? "@e" : "@");
    if (exponentMark != std::string_view::npos) {
        std::string_view exponent = rest.substr(exponentMark + 1);
        const bool isNegative = exponent.starts_with('-');
        exponent = exponent.substr(isNegative || exponent.starts_with('+') ? 1 : 0);
        numeral.exponent = static_cast<long>(wholeNumberFrom(exponent, numeral.base));
        numeral.exponent = isNegative ? -numeral.exponent : numeral.exponent;
        rest = rest.substr(0, exponentMark);
    }
    const std::size_t decimalMark = rest.find('.');
    numeral.whole = digitsOf(rest.substr(0, decimalMark), false, numeral);
    if (decimalMark != std::string_view::npos && decimalMark + 1 < rest.size()) {
        numeral.fraction = digitsOf(rest.substr(decimalMark + 1), true, numeral);
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
