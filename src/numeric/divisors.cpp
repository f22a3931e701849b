// The list functions on whole numbers, without walking the primes.
#include "numeric/divisors.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

#include "numeric/montgomery.h"
#include "numeric/primes.h"
#include "numeric/words.h"

namespace calquo {
namespace {

using Words = std::vector<std::uint64_t>;

Words toWords(std::span<const Value> items) {
    Words words;
    words.reserve(items.size());
    for (const Value& item : items) {
        words.push_back(toUnsignedWord(item));
    }
    return words;
}

std::uint64_t euclid(std::uint64_t a, std::uint64_t b) {
    while (b != 0) {
        const std::uint64_t remainder = a % b;
        a = b;
        b = remainder;
    }
    return a;
}

std::uint64_t commonDivisor(std::span<const std::uint64_t> words) {
    std::uint64_t divisor = 0;
    for (const std::uint64_t word : words) {
        divisor = euclid(word, divisor);
    }
    return divisor;
}

/// An odd number of any size, lowest word first, which grows by one factor at a time.
class OddMultiple {
public:
    /// The number modulo 2^64.
    [[nodiscard]] std::uint64_t low() const { return words_.front(); }

    /// The greatest common divisor with an odd word.
    [[nodiscard]] std::uint64_t commonDivisorWith(std::uint64_t word) const {
        // The remainder comes multiplied by a power of 2^-64, which has no factor in common with an odd word.
        const Montgomery field(word);
        std::uint64_t remainder = 0;
        for (const std::uint64_t digit : words_) {
            const UInt128 sum = UInt128{0, remainder} + UInt128{0, digit};
            remainder = sum.high == 0 ? field.multiply(sum.low, 1) : field.add(field.multiply(sum.low, 1), 1 % word);
        }
        return euclid(word, remainder);
    }

    void multiplyBy(std::uint64_t factor) {
        std::uint64_t carry = 0;
        for (std::uint64_t& digit : words_) {
            const UInt128 product = multiply(digit, factor) + UInt128{0, carry};
            digit = product.low;
            carry = product.high;
        }
        if (carry != 0) {
            words_.push_back(carry);
        }
    }

private:
    Words words_ = {1};
};

}  // namespace

Value gcd(std::span<const Value> items) { return fromWord(commonDivisor(toWords(items))); }

Value gcf(std::span<const Value> items) {
    const Words words = toWords(items);
    const auto zero = std::ranges::find(words, 0U);
    if (zero == words.end()) {
        return fromWord(commonDivisor(words));
    }
    const std::uint64_t ahead = commonDivisor({words.begin(), zero});
    if (ahead == 1) {
        return Value(1);
    }
    const std::uint64_t prime = ahead == 0 ? 2 : smallestPrimeFactor(ahead);
    return fromWord(commonDivisor({zero, words.end()}) % prime == 0 ? prime : 1);
}

Value lcm(std::span<const Value> items) {
    if (items.empty()) {
        return Value(0);
    }
    int powerOfTwo = 0;
    OddMultiple multiple;
    for (std::uint64_t word : toWords(items)) {
        if (word == 0) {
            continue;
        }
        const int zeros = std::countr_zero(word);
        powerOfTwo = std::max(powerOfTwo, zeros);
        word >>= zeros;
        multiple.multiplyBy(word / multiple.commonDivisorWith(word));
    }
    return fromWord(multiple.low() << powerOfTwo);
}

}  // namespace calquo
