// The generator's words, and the numbers that are made of them.
#include "numeric/random.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ratio>

#include "numeric/checked_real.h"
#include "numeric/checks.h"
#include "numeric/words.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// 15 bits on every platform, also where the C library's generator yields 31.
std::uint64_t draw() { return static_cast<std::uint64_t>(std::rand()) & 0x7FFF; }

/// A number from -1 to 1.
Real randomDeflection() { return subReal(mulReal(2, randomUniform()), 1); }

}  // namespace

std::uint64_t seedRandom(std::uint64_t seed) {
    std::srand(static_cast<std::uint32_t>(seed));
    return seed;
}

void seedRandomFromClock() {
    using namespace std::chrono;
    using Ticks = duration<std::int64_t, std::ratio<1, 10'000'000>>;
    // File times count from the first day of 1601; in nanoseconds the time since then would overflow.
    constexpr Ticks from1601To1970 = sys_days{} - sys_days{year{1601} / January / 1};
    const Ticks now = duration_cast<Ticks>(system_clock::now().time_since_epoch()) + from1601To1970;
    const auto ticks = static_cast<std::uint64_t>(now.count());
    seedRandom(ticks ^ ticks >> 32);
}

std::uint64_t randomWord() {
    std::uint64_t word = draw();
    for (int missing = 64; missing > 0; missing -= 13) {
        word = word << 13 ^ draw();
    }
    return word;
}

Real randomUniform() { return divReal(static_cast<Real>(randomWord()), largestUnsignedWord); }

Real randomInRange(Real a, Real b) {
    if (a > b) {
        raise(ErrorCode::InvalidArgument);
    }
    return addReal(a, mulReal(subReal(b, a), randomUniform()));
}

Value rnd() { return {randomUniform()}; }

Value rndC() {
    const Real re = randomUniform();
    return {re, randomUniform()};
}

Value rndCG() {
    Real u = 0;
    Real v = 0;
    Real s = 0;
    do {
        u = randomDeflection();
        v = randomDeflection();
        s = addReal(sqrReal(u), sqrReal(v));
    } while (s >= 1);
    const Real scale = std::sqrt(divReal(mulReal(-2, lnReal(s)), s));
    return {mulReal(u, scale), mulReal(v, scale)};
}

Value rndG() { return {rndCG().re}; }

Value rndR(const Value& a, const Value& b) {
    requireReal(a, CheckFlags::Report);
    requireReal(b, CheckFlags::Report);
    return Value(randomInRange(a.re, b.re)).at(b.positions);
}

Value rndSeed(const Value& seed) { return fromWord(seedRandom(toUnsignedWord(seed))).at(seed.positions); }

}  // namespace calquo
