// Schoolbook arithmetic on 32-bit words.
#include "values/wide_natural.h"

#include <algorithm>
#include <bit>

namespace calquo {

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): only the used words are ever read.
WideNatural::WideNatural(UInt128 number) {
    while (number != UInt128{}) {
        append(static_cast<std::uint32_t>(number.low));
        number = shiftRight(number, 32);
    }
}

void WideNatural::append(std::uint32_t word) {
    words_.at(used_) = word;
    ++used_;
}

void WideNatural::trim() {
    while (used_ != 0 && words_[used_ - 1] == 0) {
        --used_;
    }
}

void WideNatural::multiplyBy(std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < used_; ++i) {
        carry += std::uint64_t{words_[i]} * factor;
        words_[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    if (carry != 0) {
        append(static_cast<std::uint32_t>(carry));
    }
}

void WideNatural::multiplyByPower(std::uint32_t base, unsigned exponent) {
    std::uint32_t factor = 1;
    for (; exponent != 0; --exponent) {
        if (factor > UINT32_MAX / base) {
            multiplyBy(factor);
            factor = 1;
        }
        factor *= base;
    }
    multiplyBy(factor);
}

void WideNatural::shiftLeftBy(unsigned bits) {
    multiplyBy(std::uint32_t{1} << bits % 32);
    const std::size_t shift = used_ == 0 ? 0 : bits / 32;
    for (std::size_t i = 0; i < shift; ++i) {
        append(0);
    }
    std::copy_backward(words_.begin(), words_.begin() + static_cast<std::ptrdiff_t>(used_ - shift),
                       words_.begin() + static_cast<std::ptrdiff_t>(used_));
    std::fill_n(words_.begin(), shift, 0U);
}

unsigned WideNatural::bitsToNormalize() const { return static_cast<unsigned>(std::countl_zero(words_[used_ - 1])); }

bool WideNatural::subtractProduct(const WideNatural& divisor, std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < divisor.used_; ++i) {
        carry += std::uint64_t{divisor.words_[i]} * factor;
        const auto part = static_cast<std::uint32_t>(carry);
        carry = (carry >> 32) + (words_[i] < part ? 1 : 0);
        words_[i] -= part;
    }
    if (used_ > divisor.used_) {
        const bool below = words_[divisor.used_] < carry;
        words_[divisor.used_] -= static_cast<std::uint32_t>(carry);
        return below;
    }
    return carry != 0;
}

void WideNatural::addBack(const WideNatural& divisor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < divisor.used_; ++i) {
        carry += std::uint64_t{words_[i]} + divisor.words_[i];
        words_[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    if (used_ > divisor.used_) {
        words_[divisor.used_] += static_cast<std::uint32_t>(carry);
    }
}

std::uint32_t WideNatural::divideBy(const WideNatural& divisor) {
    if (used_ < divisor.used_) {
        return 0;
    }
    const std::uint64_t upper = used_ > divisor.used_ ? words_[divisor.used_] : 0;
    const std::uint64_t leading = upper << 32 | words_[divisor.used_ - 1];
    // At most one too high: what the divisor has below its highest word is less than a 2^31st of it, and so leaves the
    // estimate less than 1 above a quotient below 2^31.
    auto quotient = static_cast<std::uint32_t>(leading / divisor.words_[divisor.used_ - 1]);
    if (subtractProduct(divisor, quotient)) {
        --quotient;
        addBack(divisor);
    }
    trim();
    return quotient;
}

int compare(const WideNatural& a, const WideNatural& b) {
    if (a.used_ != b.used_) {
        return a.used_ < b.used_ ? -1 : 1;
    }
    for (std::size_t i = a.used_; i-- != 0;) {
        if (a.words_[i] != b.words_[i]) {
            return a.words_[i] < b.words_[i] ? -1 : 1;
        }
    }
    return 0;
}

}  // namespace calquo
