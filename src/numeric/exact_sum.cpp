// Digits of 32 bits in words of 64, whose carries wait until the sum is asked for.
#include "numeric/exact_sum.h"

#include <bit>

namespace calquo {

void ExactSum::add(const SignedWide& term, bool subtract) {
    if (term.zero) {
        return;
    }
    const auto position = static_cast<unsigned>(term.magnitude.exponent - lowestExponent);
    const int shift = static_cast<int>(position % digitBits);
    // 160 bits: the mantissa where its digits begin.
    const UInt128 low = shiftLeft(term.magnitude.mantissa, shift);
    const std::uint64_t top = shift == 0 ? 0 : term.magnitude.mantissa.high >> (2 * digitBits - shift);
    constexpr std::uint64_t mask = 0xFFFFFFFF;
    const std::uint64_t pieces[] = {low.low & mask, low.low >> digitBits, low.high & mask, low.high >> digitBits, top};
    std::size_t index = position / digitBits;
    for (const std::uint64_t piece : pieces) {
        const auto digit = static_cast<std::int64_t>(piece);
        digits_[index++] += term.negative != subtract ? -digit : digit;
    }
}

void ExactSum::add(ExactSum other, std::int64_t times) {
    const bool negative = other.normalize();
    for (std::size_t index = 0; index < digits_.size(); ++index) {
        digits_[index] += negative ? -other.digits_[index] * times : other.digits_[index] * times;
    }
    // The next sum finds room again.
    if (carry() < 0) {
        digits_.back() -= std::int64_t{1} << digitBits;
    }
}

std::int64_t ExactSum::carry() {
    std::int64_t carried = 0;
    for (std::int64_t& digit : digits_) {
        digit += carried;
        carried = digit >> digitBits;
        digit &= 0xFFFFFFFF;
    }
    return carried;
}

bool ExactSum::normalize() {
    if (carry() >= 0) {
        return false;
    }
    // The complement: what the digits lack to the power of two that was borrowed.
    for (std::int64_t& digit : digits_) {
        digit = -digit;
    }
    carry();
    return true;
}

SignedWide ExactSum::value() {
    const bool negative = normalize();
    std::size_t top = digits_.size();
    while (top > 0 && digits_[top - 1] == 0) {
        --top;
    }
    if (top == 0) {
        return 0;
    }
    const auto digit = [&](std::size_t fromTop) {
        return fromTop < top ? static_cast<std::uint64_t>(digits_[top - 1 - fromTop]) : 0;
    };
    UInt128 mantissa = {digit(0) << digitBits | digit(1), digit(2) << digitBits | digit(3)};
    const int shift = std::countl_zero(static_cast<std::uint32_t>(digit(0)));
    mantissa = shiftLeft(mantissa, shift) + UInt128{0, digit(4) << shift >> digitBits};
    return {WideFloat{mantissa, exponentOf(top - 1) - 3 * digitBits - shift}, negative};
}

}  // namespace calquo
