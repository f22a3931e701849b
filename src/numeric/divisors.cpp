// The list functions on whole numbers, without walking the primes.
#include "numeric/divisors.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
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

/// The least common multiple of odd words, of any size, lowest digit first.
class OddMultiple {
public:
    /// As many words as are taken in at once, so that their chains of multiplications run side by side.
    static constexpr std::size_t batchSize = 4;
    using Batch = std::array<std::uint64_t, batchSize>;

    /// The multiple modulo 2^64.
    [[nodiscard]] std::uint64_t low() const { return digits_.front(); }

    /// Makes this the multiple of the words, too; each must be odd.
    void include(const Batch& words) {
        const std::array fields = {Montgomery(words[0]), Montgomery(words[1]), Montgomery(words[2]),
                                   Montgomery(words[3])};
        // The remainders come multiplied by powers of 2^-64, which have no factor in common with an odd word.
        Batch remainders = {};
        for (const std::uint64_t digit : digits_) {
            for (std::size_t index = 0; index < batchSize; ++index) {
                remainders[index] = fields[index].reduce(UInt128{0, remainders[index]} + UInt128{0, digit});
            }
        }
        Batch missing = {};
        for (std::size_t index = 0; index < batchSize; ++index) {
            std::uint64_t remainder = remainders[index];
            for (std::size_t earlier = 0; earlier < index; ++earlier) {
                remainder = fields[index].multiply(remainder, missing[earlier]);
            }
            missing[index] = words[index] / euclid(words[index], remainder);
        }
        multiplyBy(missing);
    }

private:
    void multiplyBy(const Batch& factors) {
        digits_.resize(digits_.size() + batchSize);
        Batch carries = {};
        for (std::uint64_t& digit : digits_) {
            for (std::size_t index = 0; index < batchSize; ++index) {
                const UInt128 product = multiply(digit, factors[index]) + UInt128{0, carries[index]};
                digit = product.low;
                carries[index] = product.high;
            }
        }
        while (digits_.back() == 0) {
            digits_.pop_back();
        }
    }

    Words digits_ = {1};
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
    constexpr std::uint64_t neutral = 1;
    int powerOfTwo = 0;
    Words odd;
    for (const std::uint64_t word : toWords(items)) {
        if (word != 0) {
            const int zeros = std::countr_zero(word);
            powerOfTwo = std::max(powerOfTwo, zeros);
            odd.push_back(word >> zeros);
        }
    }
    std::ranges::sort(odd);
    odd.erase(std::unique(odd.begin(), odd.end()), odd.end());
    odd.resize((odd.size() + OddMultiple::batchSize - 1) / OddMultiple::batchSize * OddMultiple::batchSize, neutral);
    OddMultiple multiple;
    for (std::size_t start = 0; start < odd.size(); start += OddMultiple::batchSize) {
        multiple.include({odd[start], odd[start + 1], odd[start + 2], odd[start + 3]});
    }
    return fromWord(multiple.low() << powerOfTwo);
}

}  // namespace calquo
