// Random numbers from the C library's generator: its seeding, uniform and normal draws, and the functions of the
// language. The order of the draws is fixed: a seed determines everything that follows it.
#pragma once

#include <cstdint>

#include "values/value.h"

namespace calquo {

/// Seeds the generator with the low 32 bits and answers the seed.
std::uint64_t seedRandom(std::uint64_t seed);

/// Seeds the generator with the time of day in units of 100 ns, low half XOR high half.
void seedRandomFromClock();

/// 64 random bits from six draws of 15 bits, which deliberately overlap by two.
std::uint64_t randomWord();

/// A number from 0 to 1, both included: randomWord() / (2^64 - 1).
Real randomUniform();

/// A number from a to b, both included; raises 2 ("invalid argument") for a > b.
Real randomInRange(Real a, Real b);

/// A number from 0 to 1; a complex one with both parts so, the real part drawn first.
Value rnd();
Value rndC();

/// Two independent standard normal deviates as a complex number, by G. Marsaglia's polar method (1964), and the first
/// of them alone. 14 ("cannot be 0") in the case, one in 2^126, that both draws fall on the origin.
Value rndCG();
Value rndG();

/// A number from a to b; both must be real (11) and in order (2). Carries b's positions.
Value rndR(const Value& a, const Value& b);

/// Seeds the generator and yields the seed, which must be a word (11, 6, 12, 13). Carries its positions.
Value rndSeed(const Value& seed);

}  // namespace calquo
