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
    words.at(used) = word;
    ++used;
}

void WideNatural::trim() {
    while (used != 0 && words[used - 1] == 0) {
        --used;
    }
}

void WideNatural::multiplyBy(std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < used; ++i) {
        carry += std::uint64_t{words[i]} * factor;
        words[i] = static_cast<std::uint32_t>(carry);
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
    const std::size_t shift = used == 0 ? 0 : bits / 32;
    for (std::size_t i = 0; i < shift; ++i) {
        append(0);
    }
    std::copy_backward(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(used - shift),
                       words.begin() + static_cast<std::ptrdiff_t>(used));
    std::fill_n(words.begin(), shift, 0U);
}

unsigned WideNatural::bitsToNormalize() const { return static_cast<unsigned>(std::countl_zero(words[used - 1])); }

bool WideNatural::subtractProduct(const WideNatural& divisor, std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < divisor.used; ++i) {
        carry += std::uint64_t{divisor.words[i]} * factor;
        const auto part = static_cast<std::uint32_t>(carry);
        carry = (carry >> 32) + (words[i] < part ? 1 : 0);
        words[i] -= part;
    }
    if (used > divisor.used) {
        const bool below = words[divisor.used] < carry;
        words[divisor.used] -= static_cast<std::uint32_t>(carry);
        return below;
    }
    return carry != 0;
}

void WideNatural::addBack(const WideNatural& divisor) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < divisor.used; ++i) {
        carry += std::uint64_t{words[i]} + divisor.words[i];
        words[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    if (used > divisor.used) {
        words[divisor.used] += static_cast<std::uint32_t>(carry);
    }
}

std::uint32_t WideNatural::divideBy(const WideNatural& divisor) {
    if (used < divisor.used) {
        return 0;
    }
    const std::uint64_t upper = used > divisor.used ? words[divisor.used] : 0;
    const std::uint64_t leading = upper << 32 | words[divisor.used - 1];
    const std::uint64_t estimate = leading / divisor.words[divisor.used - 1];
    // At most two too high, because the divisor is normalized.
    auto quotient = static_cast<std::uint32_t>(std::min<std::uint64_t>(estimate, UINT32_MAX));
    if (subtractProduct(divisor, quotient)) {
        // The number went below zero and wrapped around; it is right again once adding carries out of its top.
        do {
            --quotient;
            addBack(divisor);
        } while (used > divisor.used ? words[divisor.used] != 0 : compare(*this, divisor) >= 0);
    }
    trim();
    return quotient;
}

int compare(const WideNatural& a, const WideNatural& b) {
    if (a.used != b.used) {
        return a.used < b.used ? -1 : 1;
    }
    for (std::size_t i = a.used; i-- != 0;) {
        if (a.words[i] != b.words[i]) {
            return a.words[i] < b.words[i] ? -1 : 1;
        }
    }
    return 0;
}

}  // namespace calquo
