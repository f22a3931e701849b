// Output formats: the packed word that holds a format's attributes, the seven kinds with their defaults, and checked
// access to the fields.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "values/errors.h"

namespace calquo {

/// The attributes of one output format, packed as they are stored.
using NumericFormat = std::uint32_t;

enum class FormatKind : std::uint32_t { Automatic, Scientific, FixedPoint, Currency, Integer, Rational, Fractional };

/// The fields of the word, as masks. truncation shares bits with digits, and alwaysExponent is groupWhole: a kind has
/// one or the other. Bit 5 asks for the base prefix, which is written in any case; it is on in Currency's default.
namespace field {
constexpr NumericFormat kind = 0xF0000000;
constexpr NumericFormat groupSize = 0x0F000000;          ///< G: digits in a group
constexpr NumericFormat digits = 0x00F80000;             ///< D: most fractional, or denominator digits
constexpr NumericFormat truncation = 0x00E00000;         ///< T: how Integer makes a number whole
constexpr NumericFormat significantDigits = 0x0007C000;  ///< S: most significant digits
constexpr NumericFormat exponentLimit = 0x00003E00;      ///< X: largest power still written in fixed point
constexpr NumericFormat zeroOut = 0x40;                  ///< I: numbers below 1e-12 count as 0
constexpr NumericFormat trailingZeros = 0x10;            ///< Z
constexpr NumericFormat groupFraction = 0x08;            ///< F
constexpr NumericFormat groupWhole = 0x04;               ///< W
constexpr NumericFormat alwaysExponent = 0x04;           ///< E
constexpr NumericFormat alwaysDecimalMark = 0x02;        ///< .
constexpr NumericFormat plusSign = 0x01;                 ///< +
constexpr NumericFormat flags = 0x7F;                    ///< the attributes that are on or off, and bit 5
}  // namespace field

/// One row for each kind, in the order of FormatKind.
struct FormatKindRow {
    std::string_view optionName;  ///< as given on a command line
    std::string_view menuLabel;   ///< The "&" marks the letter of its key.
    std::string_view title;       ///< of its dialog
    std::string_view letters;     ///< the attributes that the kind has, in the order of its dialog
    NumericFormat defaultWord;
};

inline constexpr std::array formatKinds = std::to_array<FormatKindRow>({
    {"automatic", "&Automatic", "Automatic Format", "GSDXIZWF.+", 0x032A1044},
    {"scientific", "&Scientific", "Scientific Format", "GSIZFE.+", 0x13222040},
    {"fixed", "&Fixed point", "Fixed-Point Format", "GDIZWF.+", 0x232A2044},
    {"currency", "&Currency", "Currency Format", "GDZWF.+", 0x33122034},
    {"integer", "&Integer", "Integer Format", "GTW+", 0x4400200C},
    {"rational", "&Rational", "Rational Format", "GDF+", 0x53180000},
    {"fractional", "Frac&tional", "Fractional Format", "GDWF+", 0x63180004},
});

/// The default words, indexed by kind: what "reset all formats" restores.
inline constexpr std::array<NumericFormat, formatKinds.size()> defaultFormats = [] {
    std::array<NumericFormat, formatKinds.size()> words{};
    std::ranges::transform(formatKinds, words.begin(), &FormatKindRow::defaultWord);
    return words;
}();

/// The value of a field of the word.
constexpr std::uint32_t getField(NumericFormat word, NumericFormat mask) {
    return (word & mask) >> std::countr_zero(mask);
}

/// The largest value that a field has room for.
constexpr std::uint32_t largestIn(NumericFormat mask) { return mask >> std::countr_zero(mask); }

/// Sets a field of the word. Raises 5 ("internal fault"), leaving the word as it is, when the value does not fit.
inline void setField(NumericFormat& word, NumericFormat mask, std::uint32_t value) {
    if (value > largestIn(mask)) {
        raise(ErrorCode::InternalFault);
    }
    word = (word & ~mask) | value << std::countr_zero(mask);
}

}  // namespace calquo
