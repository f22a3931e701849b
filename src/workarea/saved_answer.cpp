// Writing today's value with as many digits as the saved one shows.
#include "workarea/saved_answer.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>

#include "engine/characters.h"
#include "format/value_writer.h"

namespace calquo {
namespace {

/// An imaginary part below it may have been left out.
constexpr Real insignificant = 1e-12L;

/// So many digits of a whole number at least are taken for shown.
constexpr std::size_t surelyShown = 8;

/// A real number as text, without what formats differ in though they show the same digits: groups, a plus sign, zeros
/// at the end of the fraction.
struct ShownNumber {
    std::string mantissa;  ///< With sign and base prefix.
    std::string exponent;  ///< With its mark and its sign; empty in fixed point.
    std::size_t digits = 0;
    std::size_t fractionalDigits = 0;
    std::size_t zerosAtEnd = 0;  ///< Of a whole number.

    friend bool operator==(const ShownNumber& one, const ShownNumber& other) {
        return one.mantissa == other.mantissa && one.exponent == other.exponent;
    }
};

std::size_t exponentBegin(std::string_view text, std::uint64_t base) {
    const char mark = markCharacter(TokenClass::ExponentMark);
    const auto isMark = [&](char character) {
        return character == mark || (base < firstBaseWithDigitE && lowerCase(character) == 'e');
    };
    return static_cast<std::size_t>(std::ranges::find_if(text, isMark) - text.begin());
}

ShownNumber shownNumber(std::string_view text, std::uint64_t base) {
    ShownNumber shown;
    const char decimalMark = markCharacter(TokenClass::DecimalMark);
    std::string plain(text);
    std::erase(plain, markCharacter(TokenClass::GroupMark));
    if (plain.starts_with('+')) {
        plain.erase(0, 1);
    }
    if (plain.starts_with(decimalMark)) {
        plain.insert(0, 1, '0');
    }
    const std::size_t split = plain.find("inf") == std::string::npos ? exponentBegin(plain, base) : plain.size();
    shown.exponent = plain.substr(split);
    shown.mantissa = plain.substr(0, split);
    const std::size_t prefix = shown.mantissa.find(markCharacter(TokenClass::BaseMark));
    const std::size_t mark = shown.mantissa.find(decimalMark);
    const std::string_view digits =
        std::string_view(shown.mantissa).substr(prefix == std::string::npos ? 0 : prefix + 1);
    const auto isDigit = [](char character) { return digitValue(character) != notADigit; };
    shown.digits = static_cast<std::size_t>(std::ranges::count_if(digits, isDigit));
    if (mark == std::string::npos) {
        shown.zerosAtEnd = digits.size() - 1 - std::min(digits.find_last_not_of('0'), digits.size() - 1);
    } else {
        shown.fractionalDigits = shown.mantissa.size() - mark - 1;
        shown.mantissa.erase(shown.mantissa.find_last_not_of('0') + 1);
        if (shown.mantissa.ends_with(decimalMark)) {
            shown.mantissa.pop_back();
        }
    }
    return shown;
}

NumericFormat formatOf(FormatKind kind, std::size_t significantDigits, std::size_t fractionalDigits) {
    const auto within = [](std::size_t count, NumericFormat mask) {
        return std::min(static_cast<std::uint32_t>(count), largestIn(mask));
    };
    NumericFormat word = 0;
    setField(word, field::kind, static_cast<std::uint32_t>(kind));
    setField(word, field::significantDigits, within(significantDigits, field::significantDigits));
    setField(word, field::digits, within(fractionalDigits, field::digits));
    setField(word, field::exponentLimit, largestIn(field::exponentLimit));
    return word;
}

std::string written(Real x, NumericFormat word, std::uint64_t base) {
    std::string text;
    FormatReal(x, word, static_cast<std::uint32_t>(base), text);
    return text;
}

bool isFractionOf(std::string_view saved, Real x, std::uint64_t base) {
    constexpr std::size_t mostDenominatorDigits = 15;
    std::string plain(saved.substr(saved.starts_with('+') ? 1 : 0));
    std::erase(plain, markCharacter(TokenClass::GroupMark));
    for (std::size_t digits = 1; digits <= mostDenominatorDigits; ++digits) {
        for (const FormatKind kind : {FormatKind::Rational, FormatKind::Fractional}) {
            if (written(x, formatOf(kind, 0, digits), base) == plain) {
                return true;
            }
        }
    }
    return false;
}

bool isNumberOf(std::string_view saved, Real x, std::uint64_t base) {
    if (saved.find(markCharacter(TokenClass::Divide)) != std::string_view::npos) {
        return isFractionOf(saved, x, base);
    }
    const ShownNumber shown = shownNumber(saved, base);
    const auto isWrittenAs = [&](FormatKind kind, std::size_t significantDigits) {
        const NumericFormat word = formatOf(kind, significantDigits, shown.fractionalDigits);
        return shownNumber(written(x, word, base), base) == shown;
    };
    if (!shown.exponent.empty()) {
        return isWrittenAs(FormatKind::Scientific, shown.digits);
    }
    return isWrittenAs(FormatKind::FixedPoint, 0) ||
           isWrittenAs(FormatKind::Automatic, std::max(surelyShown, shown.digits - shown.zerosAtEnd));
}

bool isValueOf(std::string_view saved, const Value& value, std::uint64_t base) {
    if (!saved.starts_with(markCharacter(TokenClass::ListOpen))) {
        return std::fabs(value.im) < insignificant && isNumberOf(saved, value.re, base);
    }
    const std::size_t separator = saved.find(markCharacter(TokenClass::ListSeparator));
    const std::string_view re = saved.substr(1, separator - 1);
    const std::string_view im = saved.substr(separator + 2, saved.size() - separator - 3);
    return isNumberOf(re, value.re, base) && isNumberOf(im, value.im, base);
}

}  // namespace

bool isSameAnswer(std::string_view saved, const Answer& today) {
    const auto isText = [&](ErrorPlace place) {
        std::string text;
        appendAnswer(text, today, place);
        return text == saved;
    };
    if (isText(ErrorPlace::Hidden) || isText(ErrorPlace::Shown)) {
        return true;
    }
    return !today.failed && !saved.starts_with("Error") && isValueOf(saved, today.value, today.outputBase);
}

}  // namespace calquo
