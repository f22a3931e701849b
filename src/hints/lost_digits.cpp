// The rules for lost digits; see lost_digits.h.
#include "hints/lost_digits.h"

#include <algorithm>
#include <cmath>

#include "engine/characters.h"
#include "format/value_writer.h"
#include "hints/name_facts.h"

namespace calquo {
namespace {

/// Significant digits of a value in a hint: fewer than it has, so that the traces of rounding do not show.
constexpr std::uint32_t mostDigits = 14;
constexpr std::uint32_t someDigits = 8;

/// From here on not every whole number has a value of its own.
constexpr Real largestWhole = 18446744073709551616.0L;

/// What rounding leaves of a difference that should be 0, or of a sine of pi.
constexpr Real largestTrace = 1e-15L;

FormatKind kindOf(NumericFormat word) { return static_cast<FormatKind>(getField(word, field::kind)); }

/// Whether the format is one that people choose without giving up digits.
bool keepsDigits(NumericFormat word) {
    const FormatKind kind = kindOf(word);
    return kind == FormatKind::Automatic || kind == FormatKind::Scientific || kind == FormatKind::FixedPoint;
}

/// The text of a value as Scientific writes it, with so many digits.
std::string scientific(const Answer& answer, std::uint32_t digits) {
    NumericFormat word = defaultFormats[static_cast<std::size_t>(FormatKind::Scientific)];
    setField(word, field::significantDigits, digits);
    word &= ~field::zeroOut;
    return FormatValue(answer.value, word, answer.outputBase);
}

/// All digits of a whole number, or those of a number of cents.
std::string inFull(const Answer& answer, bool whole) {
    NumericFormat word = defaultFormats[static_cast<std::size_t>(whole ? FormatKind::Integer : FormatKind::Currency)];
    if (answer.outputBase == 10) {
        // Groups of three, as results have them, whatever those of Integer are.
        setField(word, field::groupSize, thousandsGroup);
    }
    return FormatValue(answer.value, word, answer.outputBase);
}

/// Whether a text has a digit other than 0, in its mantissa.
bool showsDigits(std::string_view text) {
    const std::size_t prefix = text.find(markCharacter(TokenClass::BaseMark));
    if (prefix != std::string_view::npos) {
        text.remove_prefix(prefix + 1);
    }
    return std::ranges::any_of(text, [](char c) { return c != '0' && digitValue(c) != notADigit; });
}

/// Significant digits that a text in base 10 shows.
std::size_t digitsShown(std::string_view text) {
    text = text.substr(0, text.find_first_of("e@"));
    const std::size_t first = text.find_first_of("123456789");
    return first == std::string_view::npos
               ? 0
               : static_cast<std::size_t>(std::ranges::count_if(text.substr(first), isDecimalDigit));
}

/// Whether a tiny result may be what rounding has left of 0.
bool maySumToZero(const Words& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool isSum = (words[i].is("+") || words[i].is("-")) && i > 0 && endsOperand(words[i - 1]);
        if (isSum || isFunctionName(words[i])) {
            return true;
        }
    }
    return false;
}

/// Whether the text stands for another number than the value: its digits are fewer.
bool losesDigits(const Answer& answer, std::uint32_t digits) {
    return digitsShown(scientific(answer, digits)) > digitsShown(answer.text);
}

/// Whether a temperature is converted: what rounding leaves of 0 is as large as the offset of its scale makes it.
bool hasScale(const Words& words) {
    return std::ranges::any_of(words, [](const Word& word) {
        const Unit* const unit = word.isName() ? unitOf(word.text) : nullptr;
        return unit != nullptr && unit->offset != 0;
    });
}

/// Factorials come from an approximation, whose last digits are not those of the whole number.
bool hasFactorial(const Words& words) {
    return std::ranges::any_of(words, [](const Word& word) { return word.is("!") || isNamed(word, "fact"); });
}

bool isRealAnswer(const Answer* answer) {
    return answer != nullptr && std::fabs(answer->value.im) < 1e-12L && std::isfinite(answer->value.re);
}

}  // namespace

bool findsHiddenValue(const Situation& situation, Findings& findings) {
    const Answer* const answer = situation.answer;
    if (!isRealAnswer(answer) || answer->value.re == 0 || kindOf(situation.settings.format) == FormatKind::Integer ||
        showsDigits(answer->text)) {
        return false;
    }
    if (std::fabs(answer->value.re) < largestTrace && maySumToZero(situation.words())) {
        return false;
    }
    constexpr Real largestTraceOfOffset = 1e-12L;
    if (std::fabs(answer->value.re) < largestTraceOfOffset && hasScale(situation.words())) {
        return false;
    }
    findings[0] = scientific(*answer, someDigits);
    return true;
}

bool findsHiddenDigits(const Situation& situation, Findings& findings) {
    const Answer* const answer = situation.answer;
    constexpr Real million = 1e6L;
    if (!isRealAnswer(answer) || !keepsDigits(situation.settings.format)) {
        return false;
    }
    const Real magnitude = std::fabs(answer->value.re);
    if (magnitude < million || magnitude > largestWhole || hasFactorial(situation.words())) {
        return false;
    }
    const bool whole = magnitude == std::trunc(magnitude);
    const Real cents = magnitude * 100;
    constexpr Real traceOfRounding = 1e-17L;
    const bool isMoney =
        !whole && answer->outputBase == 10 && std::fabs(cents - std::round(cents)) <= cents * traceOfRounding;
    if (!whole && !isMoney) {
        return false;
    }
    findings[0] = inFull(*answer, whole);
    // What the text shows in groups, or with an exponent, may still be all of it.
    const auto significant = [](std::string_view text) {
        std::string digits;
        const std::size_t prefix = text.find(markCharacter(TokenClass::BaseMark));
        text = prefix == std::string_view::npos ? text : text.substr(prefix + 1);
        for (const char c : text.substr(0, text.find_first_of(prefix == std::string_view::npos ? "e@" : "@"))) {
            if (digitValue(c) != notADigit) {
                digits += c;
            }
        }
        digits.erase(digits.find_last_not_of('0') + 1);
        return digits;
    };
    return significant(findings[0]) != significant(answer->text);
}

bool findsFewDigits(const Situation& situation, Findings& findings) {
    const Answer* const answer = situation.answer;
    constexpr int enough = 4;
    if (!isRealAnswer(answer) || answer->outputBase != 10 || answer->value.re == 0 ||
        std::fabs(answer->value.re) >= 1 || getField(situation.settings.format, field::digits) < 3 ||
        !(kindOf(situation.settings.format) == FormatKind::Automatic ||
          kindOf(situation.settings.format) == FormatKind::FixedPoint)) {
        return false;
    }
    // The places that the format has for them, also where they are 0 and left out.
    const auto leading = static_cast<int>(std::floor(std::log10(std::fabs(answer->value.re))));
    const int shown = static_cast<int>(getField(situation.settings.format, field::digits)) + leading + 1;
    if (shown <= 0 || shown >= enough || answer->text.find('e') != std::string::npos ||
        !losesDigits(*answer, mostDigits)) {
        return false;
    }
    findings[0] = scientific(*answer, someDigits);
    findings[1] = shown == 1 ? "one digit" : shown == 2 ? "two digits" : "three digits";
    return true;
}

}  // namespace calquo
