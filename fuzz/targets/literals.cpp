// Literals of any base, length and size, with and without group marks, are read as the nearest extended number, ties to
// even: held against MPFR.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "accuracy/numeral.h"
#include "engine/characters.h"
#include "engine/number_literal.h"
#include "same_value.h"
#include "target.h"
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

/// Puts marks between groups of a length, counted from the decimal mark outwards.
void groupDigits(Numeral& numeral, std::size_t length) {
    for (std::size_t end = numeral.whole.size(); end > length;) {
        end -= length;
        numeral.whole.insert(end, 1, ',');
    }
    for (std::size_t index = length; index < numeral.fraction.size(); index += length + 1) {
        numeral.fraction.insert(index, 1, ',');
    }
}

/// Whether the marks of a text make groups of a length that is read after a base prefix.
bool hasGroups(std::string text) {
    try {
        // The reference reads no numbers without a whole part.
        const std::size_t digits = text.find('\'') + 1;
        text.insert(digits, text[digits] == '.' ? 1 : 0, '0');
        const Numeral numeral = numeralFrom(text);
        const bool isRead = numeral.groupSize >= shortestGroup && numeral.groupSize <= longestGroup;
        const bool groupsWhole = text.find(',') < text.find('.');
        return isRead && !(groupsWhole && numeral.whole.starts_with('0'));
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// The literal is read as the expected number, or refused where its group marks make no groups.
void checkReading(const std::string& literal, Real expected) {
    const bool isGrouped = literal.find(',') != std::string::npos;
    const bool isRead = !isGrouped || hasGroups(literal);
    try {
        Real number = 0;
        require(readNumber(literal, 0, number) == literal.size(), "a part of the literal is left over");
        require(isRead && isSameNumber(number, expected), literal.c_str());
    } catch (const Except& fault) {
        if (isRead) {
            require(fault.code == ErrorCode::DomainRange && expected == positiveInfinity, literal.c_str());
        } else {
            require(fault.code == ErrorCode::MisplacedGroupMark, literal.c_str());
            require(errorPosition() == static_cast<std::int32_t>(literal.find(',')), literal.c_str());
        }
    }
}

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
    const Real expected = nearestReal(numeral);
    checkReading(textOf(numeral), expected);
    groupDigits(numeral, 1 + reader.byte() % (longestGroup + 1));
    std::string grouped = textOf(numeral);
    checkReading(grouped, expected);
    // One mark more, anywhere among the digits.
    const std::size_t first = grouped.find('\'') + 2;
    const std::size_t last = std::min(grouped.find('@'), grouped.size());
    grouped.insert(first + reader.byte() % (last - first + 1), 1, ',');
    checkReading(grouped, expected);
}

const Target target("literals", check);

}  // namespace
}  // namespace calquo
