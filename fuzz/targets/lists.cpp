// Functions of long lists, whose items come in runs so that few bytes make hundreds of them: the order of the items
// does not matter where it should not, and what is asked of each function holds.
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <random>
#include <vector>

#include "numeric/divisors.h"
#include "numeric/statistics.h"
#include "target.h"
#include "values/errors.h"
#include "values/extended.h"

namespace calquo {
namespace {

using Items = std::vector<Value>;
using ListFunction = Value (*)(std::span<const Value> items);

/// Small whole numbers, any number that arithmetic can give, and what is close to the items before.
Real itemFrom(InputReader& reader, Real before) {
    const std::uint8_t kind = reader.byte();
    if (kind < 0x80) {
        return static_cast<Real>(kind) - 32;
    }
    if (kind < 0xC0) {
        return before + std::ldexp(static_cast<Real>(kind), -static_cast<int>(reader.byte()));
    }
    ExtendedBits bits{reader.number(8) | std::uint64_t{1} << 63, static_cast<std::uint16_t>(reader.number(2))};
    // Near 1 more often than not.
    bits.signExponent = kind < 0xF0 ? static_cast<std::uint16_t>(0x3FFF + bits.signExponent % 64) : bits.signExponent;
    bits.mantissa = bits.exponentField() == 0 ? 0 : bits.mantissa;
    return bits.special() ? before : realOf(bits);
}

Items itemsFrom(InputReader& reader) {
    constexpr std::size_t most = 1000;
    const bool isComplex = reader.byte() % 4 == 0;
    Items items;
    Real re = 0, im = 0;
    while (!reader.isAtEnd() && items.size() < most) {
        const std::size_t length = 1 + reader.byte();
        re = itemFrom(reader, re);
        im = isComplex ? itemFrom(reader, im) : 0;
        items.insert(items.end(), std::min(length, most - items.size()), Value(re, im));
    }
    return items;
}

struct Result {
    Value value;
    bool failed = false;
};

Result callOf(ListFunction function, const Items& items) {
    try {
        return {function(items)};
    } catch (const Except&) {
        return {{}, true};
    }
}

/// Whether two results of one exact sum are the same but for what the last step rounds.
bool isClose(const Value& a, const Value& b) {
    const Real size = std::fmax(std::fabs(a.re), std::fabs(a.im));
    const Real distance = std::fmax(std::fabs(a.re - b.re), std::fabs(a.im - b.im));
    return !(distance > size * 0x1p-60L);
}

/// Functions whose result no order of the items changes.
constexpr std::array orderless = {count, max, min, median, var, varP, sd, sdP};

void checkOrder(const Items& items) {
    Items shuffled = items;
    std::ranges::shuffle(shuffled, std::mt19937(1));
    for (const ListFunction function : orderless) {
        const Result result = callOf(function, items);
        const Result again = callOf(function, shuffled);
        require(result.failed || again.failed || isClose(result.value, again.value),
                "the order of the items changes the result");
    }
}

void checkSpread(const Items& items) {
    const bool areReal = std::ranges::all_of(items, [](const Value& item) { return item.im == 0; });
    const Result deviation = callOf(sdP, items);
    if (areReal && !deviation.failed) {
        require(deviation.value.im == 0 && !(deviation.value.re < 0), "the deviation of real items is not real");
    }
    const Result ofEqual = callOf(varP, Items(items.size(), items.front()));
    const Real size = std::fmax(std::fabs(items.front().re), std::fabs(items.front().im));
    require(size >= 0x1p8000L || (!ofEqual.failed && ofEqual.value.re == 0 && ofEqual.value.im == 0),
            "equal items vary");
}

void checkExtremes(const Items& items) {
    const Result least = callOf(min, items);
    const Result most = callOf(max, items);
    const Result middle = callOf(median, items);
    require(!least.failed && !most.failed, "an extreme fails");
    require(compare(least.value, most.value) <= 0, "the least is more than the most");
    require(middle.failed || items.size() % 2 == 0 ||
                (compare(least.value, middle.value) <= 0 && compare(middle.value, most.value) <= 0),
            "the median is beyond an extreme");
}

/// Whole numbers within words, up to `most` of them.
std::vector<std::uint64_t> wordsOf(const Items& items, std::size_t most) {
    std::vector<std::uint64_t> words;
    for (const Value& item : items) {
        const Real size = std::fabs(item.re);
        if (words.size() < most && size >= 1 && size < 0x1p62L) {
            words.push_back(static_cast<std::uint64_t>(size));
        }
    }
    return words;
}

void checkDivisors(const Items& items) {
    const std::vector<std::uint64_t> words = wordsOf(items, 50);
    Items whole;
    std::uint64_t factor = 0;
    std::uint64_t multiple = 1;
    bool fits = true;
    for (const std::uint64_t word : words) {
        whole.emplace_back(static_cast<Real>(word));
        factor = std::gcd(factor, word);
        fits = fits && !__builtin_mul_overflow(multiple / std::gcd(multiple, word), word, &multiple);
    }
    const auto isWord = [](const Value& value, std::uint64_t word) { return value.re == static_cast<Real>(word); };
    require(isWord(gcd(whole), factor) && isWord(gcf(whole), factor), "another greatest common divisor");
    require(!fits || whole.empty() || isWord(lcm(whole), multiple), "another least common multiple");
}

void check(FuzzInput input) {
    InputReader reader(input);
    const Items items = itemsFrom(reader);
    if (items.empty()) {
        return;
    }
    for (const ListFunction function : {sum, sum2, prod, avg, avgG}) {
        callOf(function, items);
    }
    checkOrder(items);
    checkSpread(items);
    checkExtremes(items);
    checkDivisors(items);
}

const Target target("lists", check);

}  // namespace
}  // namespace calquo
