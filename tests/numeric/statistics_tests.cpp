// Lists: the median whatever the order, and the extremes of infinities.
#include "numeric/statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "values/extended.h"

namespace calquo {
namespace {

TEST(Statistics, MedianStandsInTheMiddleOfEveryShuffle) {
    std::mt19937_64 generator(8);
    for (std::size_t size = 1; size <= 70; ++size) {
        std::vector<Real> numbers;
        std::vector<Value> items;
        for (std::size_t index = 0; index < size; ++index) {
            // Few different real parts, so that imaginary parts decide too.
            const auto number = static_cast<Real>(generator() % 40);
            numbers.push_back(number);
            items.emplace_back(std::floor(number / 8), std::fmod(number, 8));
        }
        std::ranges::sort(numbers);
        const Real low = numbers[(size - 1) / 2];
        const Real high = numbers[size / 2];
        const Value middle = median(items);
        EXPECT_EQ(middle.re, (std::floor(low / 8) + std::floor(high / 8)) / 2) << size;
        EXPECT_EQ(middle.im, (std::fmod(low, 8) + std::fmod(high, 8)) / 2) << size;
    }
}

TEST(Statistics, ExtremesAreFinite) {
    // No line can write a negative infinity.
    const std::vector<Value> items(2, Value(-positiveInfinity));
    EXPECT_EQ(max(items).re, -largestFinite);
    EXPECT_EQ(min(items).re, -positiveInfinity);
}

}  // namespace
}  // namespace calquo
