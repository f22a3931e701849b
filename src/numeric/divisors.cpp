// The list functions on whole numbers, without walking the primes.
#include "numeric/divisors.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
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

std::uint64_t commonDivisor(std::span<const std::uint64_t> words) {
    std::uint64_t divisor = 0;
    for (const std::uint64_t word : words) {
        divisor = std::gcd(word, divisor);
    }
    return divisor;
}

/// What the product of odd factors lacks to be a multiple of an odd word, and puts that among them.
std::uint64_t includeInMultiple(std::uint64_t word, Words& factors) {
    const Montgomery field(word);
    // The product modulo the word, times a power of 2^-64, which has no factor in common with it. It is taken in four
    // parts, whose chains of multiplications the processor runs side by side.
    std::array<std::uint64_t, 4> parts = {};
    parts.fill(field.one());
    for (std::size_t index = 0; index < factors.size(); ++index) {
        std::uint64_t& part = parts[index % parts.size()];
        part = field.multiply(part, factors[index]);
    }
    const std::uint64_t remainder =
        field.multiply(field.multiply(parts[0], parts[1]), field.multiply(parts[2], parts[3]));
    const std::uint64_t missing = word / std::gcd(word, remainder);
    // As few words as will do, for each has to be multiplied again for every word to come.
    if (!factors.empty() && missing <= std::numeric_limits<std::uint64_t>::max() / factors.back()) {
        factors.back() *= missing;
    } else {
        factors.push_back(missing);
    }
    return missing;
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
    Words factors;
    std::uint64_t multiple = 1;
    for (const std::uint64_t word : toWords(items)) {
        if (word != 0) {
            const int zeros = std::countr_zero(word);
            powerOfTwo = std::max(powerOfTwo, zeros);
            multiple *= includeInMultiple(word >> zeros, factors);
        }
    }
    return fromWord(multiple << powerOfTwo);
}

}  // namespace calquo
