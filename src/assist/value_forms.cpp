// Writes a value in other forms, and keeps those that read back as the same value.
#include "assist/value_forms.h"

#include <array>
#include <cmath>
#include <utility>

#include "engine/characters.h"
#include "engine/evaluator.h"
#include "format/fraction.h"
#include "format/numeric_format.h"
#include "format/shortest_digits.h"
#include "format/value_writer.h"
#include "numeric/complex_arithmetic.h"
#include "values/durations.h"
#include "values/errors.h"
#include "values/extended.h"
#include "values/precision.h"

namespace calquo {
namespace {

/// So many digits tell any two extended numbers apart.
constexpr std::uint32_t mostDigits = 21;

NumericFormat formatOf(FormatKind kind) {
    NumericFormat word = 0;
    setField(word, field::kind, static_cast<std::uint32_t>(kind));
    return word;
}

/// A finite number rounded to some digits.
std::string roundedText(Real number, std::uint32_t digits) {
    constexpr std::uint32_t smallestPlain = 5;
    constexpr std::uint32_t largestPlain = 20;
    NumericFormat word = formatOf(FormatKind::Automatic);
    setField(word, field::digits, largestIn(field::digits));
    setField(word, field::significantDigits, digits);
    setField(word, field::exponentLimit, std::fabs(number) < 1 ? smallestPlain : largestPlain);
    return FormatValue(number, word, 10);
}

/// The first text, from one digit on, that `isRight`; the one of most digits when none is.
template <typename TextOf, typename IsRight>
std::string fewestDigits(const TextOf& textOf, const IsRight& isRight) {
    for (std::uint32_t digits = 1; digits < mostDigits; ++digits) {
        if (std::string text = textOf(digits); isRight(text)) {
            return text;
        }
    }
    return textOf(mostDigits);
}

/// "polar(r; angle)" of two numbers that are written in full.
std::string polarCall(Real radius, Real angle, std::string_view unitName) {
    std::string text = "polar(" + fullText(radius) + "; " + fullText(angle);
    if (!unitName.empty()) {
        text += ' ';
        text += unitName;
    }
    return text + ")";
}

std::string closestPolarCall(const Value& value, Real radius, Real angle, std::string_view unitName) {
    // The functions round; numbers beside theirs may be those that give the value back.
    constexpr std::array steps = {0, 1, -1};
    const auto stepped = [](Real number, int step) {
        return step == 0 ? number : std::nextafter(number, step > 0 ? positiveInfinity : -positiveInfinity);
    };
    for (const int radiusStep : steps) {
        for (const int angleStep : steps) {
            std::string text = polarCall(stepped(radius, radiusStep), stepped(angle, angleStep), unitName);
            if (readsAs(text, value)) {
                return text;
            }
        }
    }
    return polarCall(radius, angle, unitName);
}

/// Adds a term of a sum unless it is 0.
void appendTerm(std::string& sum, const std::string& number, std::string_view unitName) {
    if (number != "0") {
        sum += sum.empty() ? "" : " + ";
        sum += number + " ";
        sum += unitName;
    }
}

}  // namespace

bool readsAs(std::string_view line, const Value& value) {
    try {
        const Value read = evaluateLine(line).value;
        return read.re == value.re && read.im == value.im;
    } catch (const Except&) {
        return false;
    }
}

std::string fullText(Real number) {
    const ExtendedBits bits = bitsOf(number);
    if (bits.special()) {
        return bits.infinite() && bits.negative() ? "" : FormatValue(number, 0, 10);
    }
    return roundedText(number, static_cast<std::uint32_t>(digitsToReadBack(number, 10)));
}

std::string fullText(const Value& value) {
    if (value.im == 0) {
        return fullText(value.re);
    }
    const std::string real = fullText(value.re);
    const std::string imaginary = fullText(value.im);
    return real.empty() || imaginary.empty() ? "" : "(" + real + "; " + imaginary + ")";
}

std::string fractionText(Real number) {
    constexpr UInt128 denominatorLimit = {0, 999'999};
    constexpr Real productLimit = 0x1p44L;
    const FullPrecision precision;
    const Real magnitude = std::fabs(number);
    const Real whole = std::trunc(magnitude);
    if (!(magnitude < productLimit) || magnitude == whole) {
        return "";
    }
    const Fraction part = closestFraction(magnitude - whole, denominatorLimit);
    const auto denominator = static_cast<Real>(part.denominator.low);
    const Real numerator = whole * denominator + static_cast<Real>(part.numerator.low);
    if (part.denominator == UInt128{0, 1} || numerator * denominator >= productLimit ||
        numerator / denominator != magnitude) {
        return "";
    }
    return (number < 0 ? "-" : "") + fullText(numerator) + "/" + fullText(denominator);
}

std::string baseText(Real number, std::uint32_t base) {
    if (!(std::fabs(number) < 0x1p64L) || number != std::trunc(number)) {
        return "";
    }
    return FormatValue(number, formatOf(FormatKind::FixedPoint), base);
}

std::string polarText(const Value& value, std::string_view unitName, Real unit) {
    if (bitsOf(value.re).special() || bitsOf(value.im).special()) {
        return "";
    }
    const FullPrecision precision;
    try {
        return closestPolarCall(value, abs(value).re, arg(value).re / unit, unitName);
    } catch (const Except&) {
        return "";  // the magnitude is beyond the finite range
    }
}

std::string timeText(Real seconds) {
    constexpr Real minute = 60;
    constexpr Real hour = 3600;
    constexpr Real tooLong = 1e12L;
    const FullPrecision precision;
    const Real magnitude = std::fabs(seconds);
    if (!(magnitude >= minute && magnitude < tooLong)) {
        return "";
    }
    std::string wholes;
    Real rest = magnitude;
    for (const auto& [unit, name] :
         {std::pair(secondsOfDay, "day"), std::pair(hour, "hour"), std::pair(minute, "minute")}) {
        appendTerm(wholes, fullText(std::trunc(rest / unit)), name);
        rest = std::fmod(rest, unit);
    }
    return fewestDigits(
        [&](std::uint32_t digits) {
            std::string text = wholes;
            appendTerm(text, roundedText(rest, digits), "second");
            return seconds < 0 ? "-(" + text + ")" : text;
        },
        [&](const std::string& text) { return readsAs(text, seconds); });
}

}  // namespace calquo
