// List functions over the checked operations.
#include "numeric/statistics.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "numeric/complex_arithmetic.h"
#include "numeric/exponential.h"
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

/// Merges neighbouring runs until one is left. The sorts of the standard library need a consistent order, which NaNs
/// spoil; this one stays within the list and ends after n log n comparisons whatever they answer.
void sort(std::vector<Value>& values) {
    std::vector<Value> merged(values.size());
    for (std::size_t run = 1; run < values.size(); run *= 2) {
        for (std::size_t start = 0; start < values.size(); start += 2 * run) {
            const std::size_t middle = std::min(start + run, values.size());
            const std::size_t end = std::min(middle + run, values.size());
            std::size_t left = start;
            std::size_t right = middle;
            for (std::size_t place = start; place < end; ++place) {
                const bool fromLeft = right == end || (left < middle && compare(values[left], values[right]) <= 0);
                merged[place] = values[fromLeft ? left++ : right++];
            }
        }
        values.swap(merged);
    }
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

/// The sum of squared deviations from the mean, divided by `divisor`.
Value variance(std::span<const Value> items, const Value& divisor) {
    if (items.empty()) {
        return Value(0);
    }
    return div(sub(sum2(items), div(sqr(sum(items)), size(items))), divisor);
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
    std::vector<Value> sorted(items.begin(), items.end());
    sort(sorted);
    const std::size_t half = sorted.size() / 2;
    if (sorted.size() % 2 != 0) {
        return sorted[half];
    }
    return div(add(sorted[half - 1], sorted[half]), Value(2));
}

Value max(std::span<const Value> items) { return extreme(items, Value(-largestFinite), 1); }

Value min(std::span<const Value> items) { return extreme(items, Value(largestFinite), -1); }

Value varP(std::span<const Value> items) { return variance(items, size(items)); }

Value var(std::span<const Value> items) { return variance(items, size(items).re - 1); }

Value sdP(std::span<const Value> items) { return sqrt(varP(items)); }

Value sd(std::span<const Value> items) { return sqrt(var(items)); }

}  // namespace calquo
