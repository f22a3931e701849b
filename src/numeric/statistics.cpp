// List functions over the checked operations.
#include "numeric/statistics.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

#include "numeric/complex_arithmetic.h"
#include "numeric/exact_sum.h"
#include "numeric/exponential.h"
#include "numeric/wide_complex.h"
#include "values/extended.h"

namespace calquo {
namespace {

Value size(std::span<const Value> items) { return {static_cast<Real>(items.size())}; }

Real quantity(const Value& v, OrderKey key) {
    switch (key) {
        case OrderKey::RealPart:
            return v.re;
        case OrderKey::ImaginaryPart:
            return v.im;
        case OrderKey::Magnitude:
            return abs(v).re;
        case OrderKey::Argument:
            return arg(v).re;
    }
    return 0;
}

/// The items in rising order, as their indices: these take a sixth of the items' memory. Merges neighbouring runs until
/// one is left. The sorts of the standard library need a consistent order, which NaNs spoil; this one stays within the
/// list and ends after n log n comparisons whatever they answer.
std::vector<std::uint32_t> risingOrder(std::span<const Value> items) {
    std::vector<std::uint32_t> order(items.size());
    std::iota(order.begin(), order.end(), 0U);
    std::vector<std::uint32_t> merged(items.size());
    for (std::size_t run = 1; run < order.size(); run *= 2) {
        for (std::size_t start = 0; start < order.size(); start += 2 * run) {
            const std::size_t middle = std::min(start + run, order.size());
            const std::size_t end = std::min(middle + run, order.size());
            std::size_t left = start;
            std::size_t right = middle;
            for (std::size_t index = start; index < end; ++index) {
                const bool fromLeft =
                    right == end || (left < middle && compare(items[order[left]], items[order[right]]) <= 0);
                merged[index] = order[fromLeft ? left++ : right++];
            }
        }
        order.swap(merged);
    }
    return order;
}

/// The item farthest in the direction that `wanted` names as an answer of compare, seen from the far end of the range.
Value extreme(std::span<const Value> items, Value best, int wanted) {
    if (items.empty()) {
        return Value(0);
    }
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        if (compare(*item, best) == wanted) {
            best = Value(item->re, item->im);
        }
    }
    return best;
}

enum class Spread { Variance, Deviation };

/// Whether no step of the variance can leave the range. Not with a NaN among the parts.
bool staysInRange(std::span<const Value> items) {
    constexpr Real limit = 0x1p8000L;
    return std::ranges::all_of(
        items, [](const Value& item) { return std::fabs(item.re) < limit && std::fabs(item.im) < limit; });
}

/// n sum(x^2) - sum(x)^2 for real items. It is the same with the first item taken from each, after which there is
/// little left to cancel: the difference is at least the sum of the squares.
template <typename Number>
Number scatterIn(std::span<const Value> items) {
    Number sum = 0, squares = 0;
    for (const Value& item : items) {
        const Number distance = Number(item.re) - items.front().re;
        sum = sum + distance;
        squares = squares + distance * distance;
    }
    return squares * size(items).re - sum * sum;
}

/// The same within (n + 8) 2^-126 of the sum of the squares; of few small whole numbers exactly and by the short road.
SignedWide scatter(std::span<const Value> items) {
    // All sums are whole and below 2^64.
    constexpr std::size_t few = 2048;
    const auto small = [](const Value& item) {
        return std::fabs(item.re) < 0x1p20L && item.re == static_cast<Real>(static_cast<int>(item.re));
    };
    const bool exact = items.size() <= few && std::ranges::all_of(items, small);
    return exact ? scatterIn<Real>(items) : scatterIn<SignedWide>(items);
}

/// A part of each item.
using Part = Real Value::*;

/// Adds n sum(ab) - sum(a) sum(b) for two parts a and b of the items, or takes it away.
void addScatter(ExactSum& total, std::span<const Value> items, Part a, Part b, bool subtract = false) {
    ExactSum products, sumOfA;
    for (const Value& item : items) {
        products.add(SignedWide(item.*a) * SignedWide(item.*b));
        sumOfA.add(item.*a);
    }
    const auto count = static_cast<std::int64_t>(items.size());
    total.add(products, subtract ? -count : count);
    sumOfA.forEachPart([&](const SignedWide& part) {
        for (const Value& item : items) {
            total.add(part * SignedWide(item.*b), !subtract);
        }
    });
}

/// n sum(z^2) - sum(z)^2. Squares of complex items cancel without bounds, so they are summed exactly.
WideComplex complexScatter(std::span<const Value> items) {
    ExactSum re, im;
    addScatter(re, items, &Value::re, &Value::re);
    addScatter(re, items, &Value::im, &Value::im, true);
    addScatter(im, items, &Value::re, &Value::im);
    return {re.value(), 2 * im.value()};
}

/// (sum2 - sum^2 / n) / divisor, or its root.
Value spread(std::span<const Value> items, Real divisor, Spread wanted) {
    if (items.empty()) {
        return Value(0);
    }
    if (divisor == 0 || !staysInRange(items)) {
        // The steps of the formula, for their errors and for NaNs.
        const Value steps = div(sub(sum2(items), div(sqr(sum(items)), size(items))), divisor);
        if (std::isnan(steps.re) || std::isnan(steps.im)) {
            return wanted == Spread::Variance ? steps : sqrt(steps);
        }
    }
    const Real totalDivisor = size(items).re * divisor;
    const bool isComplex = std::ranges::any_of(items, [](const Value& item) { return item.im != 0; });
    const WideComplex scattered = isComplex ? complexScatter(items) : WideComplex{scatter(items), 0};
    const WideComplex variance = {scattered.re / totalDivisor, scattered.im / totalDivisor};
    return rounded(wanted == Spread::Variance ? variance : squareRoot(variance));
}

}  // namespace

int compare(const Value& a, const Value& b, std::span<const OrderKey> keys) {
    for (const OrderKey key : keys) {
        const Real left = quantity(a, key);
        const Real right = quantity(b, key);
        if (left < right) {
            return -1;
        }
        if (left > right) {
            return 1;
        }
    }
    return 0;
}

Value count(std::span<const Value> items) { return size(items); }

Value sum(std::span<const Value> items) {
    Value total(0);
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        total = add(total, *item);
    }
    return total;
}

Value sum2(std::span<const Value> items) {
    Value total(0);
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        total = add(total, sqr(*item));
    }
    return total;
}

Value prod(std::span<const Value> items) {
    if (items.empty()) {
        return Value(0);
    }
    Value product(1);
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        product = mul(product, *item);
    }
    return product;
}

Value avg(std::span<const Value> items) { return items.empty() ? Value(0) : div(sum(items), size(items)); }

Value avgG(std::span<const Value> items) { return items.empty() ? Value(0) : root(prod(items), size(items)); }

Value median(std::span<const Value> items) {
    if (items.empty()) {
        return Value(0);
    }
    const std::vector<std::uint32_t> order = risingOrder(items);
    const std::size_t half = items.size() / 2;
    const Value& upper = items[order[half]];
    return items.size() % 2 != 0 ? upper : div(add(items[order[half - 1]], upper), Value(2));
}

Value max(std::span<const Value> items) { return extreme(items, Value(-largestFinite), 1); }

Value min(std::span<const Value> items) { return extreme(items, Value(largestFinite), -1); }

Value varP(std::span<const Value> items) { return spread(items, size(items).re, Spread::Variance); }

Value var(std::span<const Value> items) { return spread(items, size(items).re - 1, Spread::Variance); }

Value sdP(std::span<const Value> items) { return spread(items, size(items).re, Spread::Deviation); }

Value sd(std::span<const Value> items) { return spread(items, size(items).re - 1, Spread::Deviation); }

}  // namespace calquo
