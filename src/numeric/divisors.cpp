// The list functions on whole numbers, without walking the primes.
#include "numeric/divisors.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <vector>

#include "numeric/common_multiple.h"
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

std::uint64_t commonDivisor(std::span<const std::uint64_t> words) {
    std::uint64_t divisor = 0;
    for (const std::uint64_t word : words) {
        divisor = std::gcd(word, divisor);
    }
    return divisor;
}

}  // namespace

Value gcd(std::span<const Value> items) {
    std::uint64_t divisor = 0;
    for (const Value& item : items) {
        divisor = std::gcd(toUnsignedWord(item), divisor);
    }
    return fromWord(divisor);
}

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
    return fromWord(oddCommonMultiple(odd) << powerOfTwo);
}

}  // namespace calquo
