// Long products against multiplication by hand, with digits as large as the transforms allow.
#include "numeric/long_product.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "values/uint128.h"

namespace calquo {
namespace {

LongNatural productByHand(const LongNatural& a, const LongNatural& b) {
    LongNatural product(a.size() + b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const UInt128 sum = multiply(a[i], b[j]) + UInt128{0, product[i + j]} + UInt128{0, carry};
            product[i + j] = sum.low;
            carry = sum.high;
        }
        product[i + b.size()] = carry;
    }
    return product;
}

/// The number modulo 2^64 - 1, by casting out; 0 may come out as 2^64 - 1.
std::uint64_t sumOfWords(const LongNatural& number) {
    std::uint64_t sum = 0;
    for (const std::uint64_t word : number) {
        sum += word;
        sum += sum < word ? 1 : 0;
    }
    return sum;
}

/// Numbers with single bits set, one in so many, from the highest of each such digit on. Taken as digits of that many
/// bits, all are as far below zero as they can be, and their products add up instead of cancelling.
LongNatural bitInEvery(std::size_t distance, std::size_t words) {
    LongNatural number(words);
    for (std::size_t bit = distance - 1; bit < 64 * words; bit += distance) {
        number[bit / 64] |= std::uint64_t{1} << bit % 64;
    }
    return number;
}

/// Numbers of a length: all bits, one bit, bits in every distance, and random ones.
std::vector<LongNatural> numbersOf(std::size_t words) {
    std::vector<LongNatural> numbers = {LongNatural(words, UINT64_MAX), LongNatural(words)};
    numbers.back().back() = std::uint64_t{1} << 63;
    for (std::size_t distance = 9; distance <= 22; ++distance) {
        numbers.push_back(bitInEvery(distance, words));
    }
    static std::mt19937_64 generator(1);
    for (int sample = 0; sample < 2; ++sample) {
        numbers.emplace_back(words);
        std::ranges::generate(numbers.back(), std::ref(generator));
    }
    return numbers;
}

/// Every length of transform up to a few thousand words, filled and hardly more than half filled.
constexpr std::size_t lengths[] = {1, 2, 3, 4, 8, 15, 16, 33, 34, 67, 68, 135, 136, 271, 272, 511, 512, 1023, 1024};

TEST(LongProduct, AgreesWithMultiplicationByHand) {
    const LongMultiplier multiplier(2048);
    for (const std::size_t length : lengths) {
        for (const std::size_t other : {length, (length + 1) / 2, std::size_t{1}}) {
            const auto numbers = numbersOf(length), others = numbersOf(other);
            for (std::size_t kind = 0; kind < numbers.size(); ++kind) {
                const LongNatural &a = numbers[kind], &b = others[kind];
                LongNatural expected = productByHand(a, b);
                const std::size_t first = expected.size() / 3;
                const LongNatural part(expected.begin() + static_cast<std::ptrdiff_t>(first), expected.end() - 1);
                ASSERT_EQ(multiplier.words(multiplier.transform(a, expected.size()),
                                           multiplier.transform(b, expected.size()), first, part.size()),
                          part)
                    << "kind " << kind << ": " << length << " by " << other;
                while (!expected.empty() && expected.back() == 0) {
                    expected.pop_back();
                }
                ASSERT_EQ(multiplier.multiply(a, b), expected) << "kind " << kind << ": " << length << " by " << other;
            }
        }
    }
}

TEST(LongProduct, LongNumbersAgreeAfterCastingOut) {
    const LongMultiplier multiplier(120000);
    for (const std::size_t length : {7000, 27000, 60000}) {
        const auto numbers = numbersOf(length), others = numbersOf(length - 1);
        for (std::size_t kind = 0; kind < numbers.size(); ++kind) {
            const UInt128 expected = multiply(sumOfWords(numbers[kind]), sumOfWords(others[kind]));
            ASSERT_EQ(sumOfWords(multiplier.multiply(numbers[kind], others[kind])) % UINT64_MAX,
                      sumOfWords({expected.low, expected.high}) % UINT64_MAX)
                << "kind " << kind << ": " << length;
        }
    }
}

}  // namespace
}  // namespace calquo
