// Any word, base and value: what is written can be read, and is as near as its digits allow.
#include <cmath>

#include "engine/evaluator.h"
#include "format/value_writer.h"
#include "same_value.h"
#include "targets.h"
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

/// Whether only the exponent and the number of significant digits limit what is written.
bool keepsSignificantDigits(NumericFormat word) {
    return getField(word, field::kind) == static_cast<std::uint32_t>(FormatKind::Scientific);
}

}  // namespace

void check(FuzzInput input) {
    InputReader reader(input);
    const NumericFormat word = wordFrom(reader);
    const std::uint32_t base = reader.between(2, 36);
    const Value value(realFrom(reader), reader.byte() % 4 == 0 ? realFrom(reader) : 0);
    const std::string text = FormatValue(value, word, base);
    require(!text.empty(), "nothing is written");
    const bool isMixed = getField(word, field::kind) == static_cast<std::uint32_t>(FormatKind::Fractional);
    if (isMixed || !isWrittenWithoutLoss(value)) {
        return;
    }
    try {
        const Value back = evaluateLine(text).value;
        if (keepsSignificantDigits(word) && value.im == 0 && std::fabs(value.re) > 1e-4000L) {
            const auto digits = static_cast<int>(std::max(1U, getField(word, field::significantDigits)));
            const bool counted = hasAttribute(word, 'I') && (word & field::zeroOut) != 0 && back.re == 0;
            const Real most = std::fabs(value.re) * std::pow(static_cast<Real>(base), static_cast<Real>(1 - digits));
            const Real rounding = std::fabs(value.re) * 0x1p-62L;
            require(counted || std::fabs(back.re - value.re) <= most / 2 * 1.0001L + rounding, text.c_str());
        }
    } catch (const Except& fault) {
        // The largest numbers may be rounded to beyond the range.
        const bool isHuge = std::fmax(std::fabs(value.re), std::fabs(value.im)) > largestFinite / base;
        require(isHuge && fault.code == ErrorCode::DomainRange, text.c_str());
    }
}

}  // namespace calquo
