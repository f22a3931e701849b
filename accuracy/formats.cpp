// Makes the format words: each field goes from its smallest to its largest value in as many steps as there are words.
#include "formats.h"

namespace calquo {
namespace {

constexpr std::uint32_t wordCount = 25;

CheckedFormat withDigits(FormatKind kind, std::uint32_t fewest, std::uint32_t most) {
    CheckedFormat format{kind, {}};
    for (std::uint32_t i = 0; i < wordCount; ++i) {
        NumericFormat word = static_cast<NumericFormat>(kind) << 28 | 3U << 24;
        setField(word, field::digits, fewest + i * (most - fewest) / (wordCount - 1));
        // Every combination of few and many: 7 and 11 have no factor in common with the number of words.
        setField(word, field::significantDigits,
                 i * 7 % wordCount * largestIn(field::significantDigits) / (wordCount - 1));
        setField(word, field::exponentLimit, i * 11 % wordCount * largestIn(field::exponentLimit) / (wordCount - 1));
        setField(word, field::flags, i % 2 == 0 ? 0 : field::trailingZeros | field::groupWhole | field::groupFraction);
        format.words.push_back(word);
    }
    return format;
}

CheckedFormat withTruncationMethods() {
    CheckedFormat format{FormatKind::Integer, {}};
    for (std::uint32_t method = 0; method < 5; ++method) {
        NumericFormat word = defaultFormats[static_cast<std::size_t>(FormatKind::Integer)];
        setField(word, field::truncation, method);
        format.words.push_back(word);
    }
    return format;
}

}  // namespace

std::span<const CheckedFormat> checkedFormats() {
    static const std::vector<CheckedFormat> formats = {
        withDigits(FormatKind::Automatic, 0, largestIn(field::digits)),
        withDigits(FormatKind::Scientific, 0, 0),
        withDigits(FormatKind::FixedPoint, 0, largestIn(field::digits)),
        withDigits(FormatKind::Currency, 0, largestIn(field::digits)),
        withTruncationMethods(),
        withDigits(FormatKind::Rational, 1, 15),
        withDigits(FormatKind::Fractional, 1, 15),
    };
    return formats;
}

}  // namespace calquo
