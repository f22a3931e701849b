// Random numbers: what a seed determines, and whether the draws have the distribution that they promise.
#include "numeric/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace calquo {
namespace {

TEST(Random, SeedDeterminesTheSequenceAndItsOrder) {
    seedRandom(42);
    const std::vector<Real> uniform = {rnd().re, rnd().re, rnd().re, rnd().re};
    EXPECT_NE(uniform[0], uniform[1]);
    // Only the low half of the seed reaches the generator, and all of it comes back.
    EXPECT_EQ(seedRandom(42 + (std::uint64_t{1} << 32)), 42 + (std::uint64_t{1} << 32));
    const Value complex = rndC();
    EXPECT_EQ(complex.re, uniform[0]);
    EXPECT_EQ(complex.im, uniform[1]);
    EXPECT_EQ(rndR(Value(10), Value(18)).re, 10 + 8 * uniform[2]);
    seedRandom(42);
    const Value normal = rndCG();
    seedRandom(42);
    EXPECT_EQ(rndG().re, normal.re);
    seedRandom(43);
    EXPECT_NE(rnd().re, uniform[0]);
}

TEST(Random, NormalDrawsStretchTwoDeflectionsAlike) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        seedRandom(seed);
        const Value draws = rndC();
        const Real u = 2 * draws.re - 1;
        const Real v = 2 * draws.im - 1;
        // Draws from outside the unit circle are thrown away.
        if (u * u + v * v < 1) {
            seedRandom(seed);
            const Value normal = rndCG();
            EXPECT_NEAR(static_cast<double>(normal.im * u - normal.re * v), 0, 1e-15) << seed;
            EXPECT_GT(normal.re * u, 0) << seed;
        }
    }
}

TEST(Random, WordIsSixDrawsThatOverlapByTwoBits) {
    std::srand(7);
    std::uint64_t wanted = 0;
    for (const int place : {65, 52, 39, 26, 13, 0}) {
        const std::uint64_t bits = static_cast<std::uint64_t>(std::rand()) & 0x7FFF;
        // The first draw has its place above the word: its lowest bit stands at 65.
        if (place < 64) {
            wanted ^= bits << place;
        }
    }
    seedRandom(7);
    EXPECT_EQ(randomWord(), wanted);
    seedRandom(7);
    EXPECT_EQ(rnd().re, static_cast<Real>(wanted) / 18446744073709551615.0L);
}

/// Mean and variance of a number of draws.
template <typename Draw>
void expectMoments(Draw draw, double mean, double variance) {
    constexpr int draws = 40000;
    Real sum = 0;
    Real squares = 0;
    for (int count = 0; count < draws; ++count) {
        const Real number = draw();
        sum += number;
        squares += number * number;
    }
    const auto found = static_cast<double>(sum / draws);
    // Five standard deviations of the mean; the variance is steadier than a twentieth for both distributions.
    EXPECT_NEAR(found, mean, 5 * std::sqrt(variance / draws));
    EXPECT_NEAR(static_cast<double>(squares / draws) - found * found, variance, variance / 20);
}

TEST(Random, DrawsHaveTheirMeanAndVariance) {
    seedRandom(2024);
    expectMoments([] { return rnd().re; }, 0.5, 1.0 / 12);
    expectMoments([] { return rndC().im; }, 0.5, 1.0 / 12);
    expectMoments([] { return rndR(Value(-3), Value(9)).re; }, 3, 12);
    expectMoments([] { return rndG().re; }, 0, 1);
    expectMoments([] { return rndCG().im; }, 0, 1);
}

}  // namespace
}  // namespace calquo
