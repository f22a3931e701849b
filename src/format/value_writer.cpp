// The writers of the seven kinds: fixed point, scientific, fractions.
#include "format/value_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "engine/characters.h"
#include "format/attributes.h"
#include "format/digits.h"
#include "format/fraction.h"
#include "format/shortest_digits.h"
#include "numeric/rounding.h"
#include "values/extended.h"
#include "values/precision.h"

namespace calquo {
namespace {

/// Below this magnitude a number counts as zero under the flag I.
constexpr Real insignificant = 1e-12L;

/// A letter of the attributes, looked up while compiling: its field, and the kinds that have it, a bit for each.
struct AttributeLetter {
    NumericFormat field;
    std::uint32_t kinds = 0;

    // Implicit on purpose: a style is asked for a letter.
    consteval AttributeLetter(char letter) : field(fieldOfLetter(letter)) {
        for (std::uint32_t kind = 0; kind < formatKinds.size(); ++kind) {
            if (formatKinds[kind].letters.find(letter) != std::string_view::npos) {
                kinds |= 1U << kind;
            }
        }
        if (kinds == 0) {
            throw "no kind has the letter";
        }
    }
};

/// A kind's word taken apart: what of it applies to the number at hand. Attributes that a kind lacks are off.
struct Style {
    NumericFormat word;
    std::uint32_t base;
    int groupSize;

    Style(NumericFormat formatWord, std::uint32_t outputBase)
        : word(formatWord), base(outputBase), groupSize(static_cast<int>(getField(word, field::groupSize))) {}

    [[nodiscard]] bool knows(AttributeLetter letter) const {
        return (letter.kinds >> getField(word, field::kind) & 1) != 0;
    }
    [[nodiscard]] bool has(AttributeLetter letter) const { return knows(letter) && (word & letter.field) != 0; }
    /// A number of digits that the kind may not limit at all.
    [[nodiscard]] int limit(AttributeLetter letter, int none) const {
        return knows(letter) ? static_cast<int>(getField(word, letter.field)) : none;
    }
};

FormatKind kindOf(NumericFormat word) {
    const std::uint32_t kind = getField(word, field::kind);
    return kind < formatKinds.size() ? static_cast<FormatKind>(kind) : FormatKind::Automatic;
}

NumericFormat withKind(NumericFormat word, FormatKind kind) {
    return (word & ~field::kind) | static_cast<std::uint32_t>(kind) << std::countr_zero(field::kind);
}

/// Appends the digits of a whole part, in groups counted from its end.
void appendWhole(std::string_view digits, bool grouped, int groupSize, std::string& text) {
    if (!grouped || groupSize == 0) {
        text += digits;
        return;
    }
    const auto size = static_cast<std::size_t>(groupSize);
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % size == 0) {
            text += markCharacter(TokenClass::GroupMark);
        }
        text += digits[i];
    }
}

/// Appends the digits after the decimal mark, in groups counted from the mark.
void appendFraction(std::size_t zeros, std::string_view digits, bool grouped, int groupSize, std::string& text) {
    const auto size = static_cast<std::size_t>(groupSize);
    for (std::size_t i = 0; i < zeros + digits.size(); ++i) {
        if (grouped && size != 0 && i != 0 && i % size == 0) {
            text += markCharacter(TokenClass::GroupMark);
        }
        text += i < zeros ? '0' : digits[i - zeros];
    }
}

/// The digits of x with as many places after the mark as the limits on fractional and on significant digits leave.
/// Returns that number of places; negative when digits before the mark are rounded away.
int limitedDigits(Real x, const Style& style, int fractionalDigits, int significantDigits, DigitBuffer& digits) {
    // With so many places the digits would not fit into a word, and starting from an estimate is quicker.
    constexpr int fewPlaces = 15;
    int places = fractionalDigits;
    if (places > fewPlaces) {
        places = std::min(places, significantDigits - 1 - leadingPlace(x, style.base));
    }
    for (;;) {
        roundedDigits(x, style.base, places, digits);
        const int excess = digits.count() - significantDigits;
        if (excess <= 0) {
            return places;
        }
        places -= excess;
    }
}

class NumberWriter {
public:
    NumberWriter(const Style& style, std::string& text) : style_(style), text_(text) {}

    void write(Real x);

private:
    void writeFixed(Real magnitude, bool negative);
    void writeScientific(Real magnitude, bool negative);
    void writeFraction(Real magnitude, bool negative);

    void appendSign(bool negative, bool zero);
    void appendPrefix();
    void appendNumber(const DigitBuffer& digits, int places);
    void appendWholeNumber(UInt128 number, bool grouped);

    Style style_;
    std::string& text_;
};

/// Whether Automatic leaves fixed point: |log x| in the output base, rounded to a whole number, is above the limit.
/// Compares x with base^(limit + 1/2), which is exact in the bases whose logarithms can end in a half, the squares.
bool exceedsExponentLimit(Real magnitude, const Style& style) {
    Real bound = std::sqrt(static_cast<Real>(style.base));
    for (std::uint32_t i = getField(style.word, field::exponentLimit); i != 0; --i) {
        bound *= static_cast<Real>(style.base);
    }
    return magnitude >= bound || magnitude * bound <= 1;
}

Real madeWhole(Real x, std::uint32_t method) {
    constexpr std::array<Real (*)(Real), 5> methods = {round, sRound, floor, ceil, whole};
    return methods[method < methods.size() ? method : 0](x);
}

void NumberWriter::write(Real x) {
    const bool negative = x < 0;
    const Real magnitude = negative ? -x : x;
    switch (kindOf(style_.word)) {
        case FormatKind::Automatic:
            if (magnitude != 0 && exceedsExponentLimit(magnitude, style_)) {
                style_.word = withKind(style_.word, FormatKind::Scientific);
                writeScientific(magnitude, negative);
                return;
            }
            writeFixed(magnitude, negative);
            return;
        case FormatKind::Scientific:
            writeScientific(magnitude, negative);
            return;
        case FormatKind::Rational:
        case FormatKind::Fractional:
            writeFraction(magnitude, negative);
            return;
        case FormatKind::FixedPoint:
        case FormatKind::Currency:
        case FormatKind::Integer:
            writeFixed(magnitude, negative);
            return;
    }
}

void NumberWriter::appendSign(bool negative, bool zero) {
    if (negative && !zero) {
        text_ += '-';
    } else if (!zero && style_.has('+')) {
        text_ += '+';
    }
}

void NumberWriter::appendPrefix() {
    if (style_.base != 10) {
        text_ += std::to_string(style_.base);
        text_ += markCharacter(TokenClass::BaseMark);
    }
}

/// Appends digits that are a number times base^places.
void NumberWriter::appendNumber(const DigitBuffer& buffer, int places) {
    std::string_view digits = buffer.text();
    const auto fractional = static_cast<std::size_t>(std::max(places, 0));
    const std::size_t wholeDigits = digits.size() > fractional ? digits.size() - fractional : 0;
    std::string_view fraction = digits.substr(wholeDigits);
    std::size_t zeros = fractional - fraction.size();
    if (!style_.has('Z')) {
        // Without any digit but 0 find_last_not_of gives npos, and npos + 1 is 0.
        fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
        zeros = fraction.empty() ? 0 : zeros;
    }
    if (wholeDigits == 0) {
        text_ += '0';
    } else if (places < 0) {
        std::string padded(digits);
        padded.append(static_cast<std::size_t>(-places), '0');
        appendWhole(padded, style_.has('W'), style_.groupSize, text_);
    } else {
        appendWhole(digits.substr(0, wholeDigits), style_.has('W'), style_.groupSize, text_);
    }
    if (zeros + fraction.size() != 0) {
        text_ += markCharacter(TokenClass::DecimalMark);
        appendFraction(zeros, fraction, style_.has('F'), style_.groupSize, text_);
    } else if (style_.has('.')) {
        text_ += markCharacter(TokenClass::DecimalMark);
    }
}

void NumberWriter::writeFixed(Real magnitude, bool negative) {
    constexpr int unlimited = 20000;
    DigitBuffer digits;
    int places = style_.limit('D', 0);
    if (magnitude != 0) {
        places = limitedDigits(magnitude, style_, places, std::max(style_.limit('S', unlimited), 1), digits);
    }
    appendSign(negative, digits.count() == 0);
    appendPrefix();
    appendNumber(digits, places);
}

void NumberWriter::writeScientific(Real magnitude, bool negative) {
    const int significant = std::max(style_.limit('S', 1), 1);
    DigitBuffer digits;
    int exponent = 0;
    if (magnitude != 0) {
        exponent = leadingPlace(magnitude, style_.base);
        roundedDigits(magnitude, style_.base, significant - 1 - exponent, digits);
        // The estimate was too low, or the rounding carried into a new leading digit.
        while (digits.count() != significant) {
            exponent += digits.count() - significant;
            roundedDigits(magnitude, style_.base, significant - 1 - exponent, digits);
        }
    }
    appendSign(negative, magnitude == 0);
    appendPrefix();
    appendNumber(digits, significant - 1);
    if (exponent == 0 && !style_.has('E')) {
        return;
    }
    text_ += style_.base < firstBaseWithDigitE ? 'e' : markCharacter(TokenClass::ExponentMark);
    text_ += exponent < 0 ? '-' : '+';
    appendWholeNumber({0, static_cast<std::uint64_t>(std::abs(exponent))}, false);
}

void NumberWriter::appendWholeNumber(UInt128 number, bool grouped) {
    if (number == UInt128{}) {
        text_ += '0';
        return;
    }
    DigitBuffer digits;
    digits.assign(number, style_.base);
    appendWhole(digits.text(), grouped, style_.groupSize, text_);
}

/// The largest number of as many digits as the field says; at least 1, and no more than the search takes, which only
/// more digits than the field is meant to hold could ask for.
UInt128 denominatorLimit(const Style& style) {
    UInt128 power = {0, 1};
    for (std::uint32_t i = getField(style.word, field::digits); i != 0; --i) {
        if (multiplyHigh(power, {0, style.base}) != UInt128{}) {
            return largestDenominator;
        }
        power = multiplyLow(power, {0, style.base});
    }
    return std::clamp(power - UInt128{0, 1}, UInt128{0, 1}, largestDenominator);
}

void NumberWriter::writeFraction(Real magnitude, bool negative) {
    Real whole = std::trunc(magnitude);
    Fraction fraction = closestFraction(magnitude - whole, denominatorLimit(style_));
    if (fraction.numerator == fraction.denominator) {
        fraction = {};
        whole += 1;
    }
    const bool rational = kindOf(style_.word) == FormatKind::Rational;
    const bool isWhole = fraction.numerator == UInt128{};
    appendSign(negative, whole == 0 && isWhole);
    if (isWhole || (whole >= 1 && !rational)) {
        DigitBuffer digits;
        if (whole != 0) {
            roundedDigits(whole, style_.base, 0, digits);
        }
        appendPrefix();
        // Under Rational a whole number is a numerator without its denominator.
        appendWhole(whole != 0 ? digits.text() : "0", rational ? style_.has('F') : style_.has('W'), style_.groupSize,
                    text_);
        if (isWhole) {
            return;
        }
        text_ += ' ';
    }
    UInt128 numerator = fraction.numerator;
    if (rational) {
        // A whole part other than 0 beside a fraction is below 2^63, and the denominator no more than 2^63.
        numerator = numerator + multiplyLow({0, static_cast<std::uint64_t>(whole)}, fraction.denominator);
    }
    appendPrefix();
    appendWholeNumber(numerator, style_.has('F'));
    text_ += '/';
    appendPrefix();
    appendWholeNumber(fraction.denominator, style_.has('F'));
}

/// Whether a value is written as its real part alone. In the kinds without the flag I, too, the trace of an imaginary
/// part that powers of negative numbers leave beside a real part counts as zero.
bool isWrittenAsReal(const Value& value, const Style& style) {
    const bool dropsTraces = (style.word & field::zeroOut) != 0 || (value.re != 0 && !style.knows('I'));
    return value.im == 0 || (dropsTraces && std::fabs(value.im) < insignificant);
}

/// Appends a value, each part by `appendPart`.
template <typename AppendPart>
void appendParts(const Value& value, const Style& style, std::string& text, AppendPart appendPart) {
    const FullPrecision precision;
    if (isWrittenAsReal(value, style)) {
        appendPart(value.re);
        return;
    }
    text += markCharacter(TokenClass::ListOpen);
    appendPart(value.re);
    text += markCharacter(TokenClass::ListSeparator);
    text += ' ';
    appendPart(value.im);
    text += markCharacter(TokenClass::ListClose);
}

/// The word with as many fractional digits as there can be, a range of fixed point in which they suffice for every
/// significant one, and nothing taken for 0.
NumericFormat withRoomForDigits(NumericFormat word) {
    constexpr std::uint32_t widestFixedPoint = 9;
    setField(word, field::digits, largestIn(field::digits));
    setField(word, field::exponentLimit, std::min(getField(word, field::exponentLimit), widestFixedPoint));
    return word & ~field::zeroOut;
}

}  // namespace

void FormatReal(Real x, NumericFormat word, std::uint32_t outputBase, std::string& text) {
    const ExtendedBits bits = bitsOf(x);
    if (bits.special()) {
        text += bits.infinite() ? (bits.negative() ? "-inf" : "+inf") : (bits.quiet() ? "qNaN" : "sNaN");
        return;
    }
    // The one flag that counts in every kind.
    if ((word & field::zeroOut) != 0 && std::fabs(x) < insignificant) {
        x = 0;
    }
    if (kindOf(word) == FormatKind::Integer) {
        x = madeWhole(x, getField(word, field::truncation));
    }
    NumberWriter(Style(word, outputBase), text).write(x);
}

void appendValue(const Value& value, NumericFormat word, std::uint64_t outputBase, std::string& text) {
    const std::uint32_t base = outputBase == 0 ? 10 : static_cast<std::uint32_t>(outputBase);
    appendParts(value, Style(word, base), text, [&](Real part) { FormatReal(part, word, base, text); });
}

void appendValueInFull(const Value& value, NumericFormat word, std::uint64_t outputBase, std::string& text) {
    const std::uint32_t base = outputBase == 0 ? 10 : static_cast<std::uint32_t>(outputBase);
    const NumericFormat exact = withRoomForDigits(word);
    appendParts(value, Style(exact, base), text, [&](Real part) {
        NumericFormat partWord = exact;
        if (!bitsOf(part).special()) {
            const auto digits = static_cast<std::uint32_t>(digitsToReadBack(part, base));
            setField(partWord, field::significantDigits, std::min(digits, largestIn(field::significantDigits)));
        }
        FormatReal(part, partWord, base, text);
    });
}

std::string FormatValue(const Value& value, NumericFormat word, std::uint64_t outputBase) {
    std::string text;
    appendValue(value, word, outputBase, text);
    return text;
}

}  // namespace calquo
