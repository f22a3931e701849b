// Literals of any base, length and size are read as the nearest extended number, ties to even: held against MPFR.
#include <mpfr.h>

#include <algorithm>
#include <string>

#include "engine/number_literal.h"
#include "same_value.h"
#include "targets.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// The parts of a literal.
struct Parts {
    std::uint32_t base = 10;
    std::string whole;
    std::string fraction;
    int exponent = 0;  ///< A power of the base.
};

char digitOf(std::uint32_t value) { return "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[value]; }

/// Digits below the base; long runs of one digit come from few bytes.
std::string digitsFrom(InputReader& reader, std::uint32_t base) {
    std::string digits;
    for (int runs = reader.byte() % 24; runs > 0; --runs) {
        const char digit = digitOf(reader.byte() % base);
        const std::uint8_t length = reader.byte();
        digits.append(length < 250 ? 1U : length * 8U, digit);
    }
    return digits;
}

std::string inBase(std::uint32_t number, std::uint32_t base) {
    std::string digits;
    do {
        digits += digitOf(number % base);
        number /= base;
    } while (number != 0);
    return {digits.rbegin(), digits.rend()};
}

std::string literalOf(const Parts& parts) {
    std::string text = std::to_string(parts.base) + "'" + parts.whole;
    if (!parts.fraction.empty()) {
        text += "." + parts.fraction;
    }
    if (parts.exponent != 0) {
        text += parts.exponent < 0 ? "@-" : "@";
        text += inBase(static_cast<std::uint32_t>(std::abs(parts.exponent)), parts.base);
    }
    return text;
}

/// The correctly rounded value, denormals included.
Real referenceOf(const Parts& parts) {
    constexpr mpfr_prec_t mantissaBits = 64;
    // MPFR counts exponents from a mantissa below 1, and the lowest bit is a number's own.
    mpfr_set_emin(ExtendedBits::smallestExponent + 1);
    mpfr_set_emax(ExtendedBits::largestExponent + mantissaBits);
    mpfr_t number;
    mpfr_init2(number, mantissaBits);
    const std::string text = parts.whole + "." + parts.fraction + "@" + std::to_string(parts.exponent);
    const int inexact = mpfr_strtofr(number, text.c_str(), nullptr, static_cast<int>(parts.base), MPFR_RNDN);
    mpfr_subnormalize(number, inexact, MPFR_RNDN);
    const Real value = mpfr_get_ld(number, MPFR_RNDN);
    mpfr_clear(number);
    return value;
}

}  // namespace

void check(FuzzInput input) {
    InputReader reader(input);
    Parts parts;
    parts.base = reader.between(2, 36);
    parts.exponent = static_cast<std::int16_t>(reader.number(2));
    parts.whole = digitsFrom(reader, parts.base);
    parts.fraction = digitsFrom(reader, parts.base);
    if (parts.whole.empty() && parts.fraction.empty()) {
        return;
    }
    const std::string literal = literalOf(parts);
    const Real expected = referenceOf(parts);
    try {
        Real number = 0;
        require(readNumber(literal, 0, number) == literal.size(), "a part of the literal is left over");
        require(isSameNumber(number, expected), literal.c_str());
    } catch (const Except& fault) {
        require(fault.code == ErrorCode::DomainRange && expected == positiveInfinity, literal.c_str());
    }
}

}  // namespace calquo
