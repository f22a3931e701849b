// Literals of any base, length and size are read as the nearest extended number, ties to even: held against MPFR.
#include <string>

#include "engine/number_literal.h"
#include "same_value.h"
#include "support/numeral.h"
#include "targets.h"
#include "values/errors.h"

namespace calquo {
namespace {

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

}  // namespace

void check(FuzzInput input) {
    InputReader reader(input);
    Numeral numeral;
    numeral.base = reader.between(2, 36);
    numeral.exponent = static_cast<std::int16_t>(reader.number(2));
    numeral.whole = digitsFrom(reader, numeral.base);
    numeral.fraction = digitsFrom(reader, numeral.base);
    if (numeral.whole.empty() && numeral.fraction.empty()) {
        return;
    }
    const std::string literal = textOf(numeral);
    const Real expected = nearestReal(numeral);
    try {
        Real number = 0;
        require(readNumber(literal, 0, number) == literal.size(), "a part of the literal is left over");
        require(isSameNumber(number, expected), literal.c_str());
    } catch (const Except& fault) {
        require(fault.code == ErrorCode::DomainRange && expected == positiveInfinity, literal.c_str());
    }
}

}  // namespace calquo
