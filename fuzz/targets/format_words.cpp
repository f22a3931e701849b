// Any word, base and value: what is written is what is closest, and can be read.
#include <cmath>

#include "accuracy/written_fraction.h"
#include "accuracy/written_number.h"
#include "engine/characters.h"
#include "engine/evaluator.h"
#include "format/value_writer.h"
#include "same_value.h"
#include "target.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// Any number that arithmetic can give.
Real realFrom(InputReader& reader) {
    ExtendedBits bits{reader.number(8), static_cast<std::uint16_t>(reader.number(2))};
    const std::uint64_t integerBit = std::uint64_t{1} << 63;
    bits.mantissa = bits.exponentField() == 0 ? bits.mantissa & ~integerBit : bits.mantissa | integerBit;
    return realOf(bits);
}

/// Any word at all, or one of a kind that there is.
NumericFormat wordFrom(InputReader& reader) {
    const auto word = static_cast<NumericFormat>(reader.number(4));
    const std::uint8_t kind = reader.byte();
    const bool anyKind = kind >= 0xE0;
    return anyKind ? word : (word & ~field::kind) | kind % std::uint32_t{formatKinds.size()} << 28;
}

/// Whether the digits, or the fraction, are the closest ones that the word leaves room for.
bool isClosestText(const std::string& text, Real x, NumericFormat word, std::uint32_t base) {
    const ExtendedBits bits = bitsOf(x);
    const bool countsAsZero = (word & field::zeroOut) != 0 && std::fabs(x) < 1e-12L;
    BigFloat exact;
    mpfr_set_ui_2exp(exact.get(), countsAsZero ? 0 : bits.mantissa, bits.exponent(), MPFR_RNDN);
    mpfr_setsign(exact.get(), exact.get(), bits.negative() ? 1 : 0, MPFR_RNDN);
    switch (static_cast<FormatKind>(getField(word, field::kind))) {
        case FormatKind::Rational:
        case FormatKind::Fractional:
            return isClosestFraction(text, exact.get(), word, base);
        default:
            return !errorOfWritten(text, exact.get(), word, base).isWrong;
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    const NumericFormat word = wordFrom(reader);
    const std::uint32_t base = reader.between(2, 36);
    const Value value(realFrom(reader), reader.byte() % 4 == 0 ? realFrom(reader) : 0);
    setGroupLengths(getField(word, field::groupSize), getField(word, field::groupSize));
    const std::string text = FormatValue(value, word, base);
    require(!text.empty(), "nothing is written");
    if (!isWrittenWithoutLoss(value)) {
        return;
    }
    const bool hasKind = getField(word, field::kind) < formatKinds.size();
    require(!hasKind || value.im != 0 || isClosestText(text, value.re, word, base), text.c_str());
    if (getField(word, field::kind) == static_cast<std::uint32_t>(FormatKind::Fractional)) {
        return;  // a mixed number is a product when it is typed
    }
    try {
        evaluateLine(text);
    } catch (const Except& fault) {
        // The largest numbers may be rounded to beyond the range.
        const bool isHuge = std::fmax(std::fabs(value.re), std::fabs(value.im)) > largestFinite / base;
        require(isHuge && fault.code == ErrorCode::DomainRange, text.c_str());
    }
}

const Target target("format_words", check);

}  // namespace
}  // namespace calquo
