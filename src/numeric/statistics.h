// Lists of values reduced to one: sums, means, spread, extremes, and the order of values that these use.
// Built from the checked complex operations, whose errors they raise at the item that fed the failing step. The empty
// list deliberately yields 0 everywhere, its product included.
#pragma once

#include <array>
#include <span>

#include "values/value.h"

namespace calquo {

/// What to compare two values by.
enum class OrderKey { RealPart, ImaginaryPart, Magnitude, Argument };

constexpr std::array defaultOrder = {OrderKey::RealPart, OrderKey::ImaginaryPart};

/// -1 when a stands before b, 1 when after, by the first key under which they differ; 0 when there is none. A NaN
/// differs from nothing, so with NaNs about this is no consistent order.
int compare(const Value& a, const Value& b, std::span<const OrderKey> keys = defaultOrder);

/// The number of items.
Value count(std::span<const Value> items);

/// Sum of the items, of their squares, and their product, each taken from the last item to the first.
Value sum(std::span<const Value> items);
Value sum2(std::span<const Value> items);
Value prod(std::span<const Value> items);

/// Arithmetic mean, the sum divided by n once, and geometric mean: the principal n-th root of the product.
Value avg(std::span<const Value> items);
Value avgG(std::span<const Value> items);

/// The item in the middle of the ordered list, or the mean of the two there. NaNs may end up anywhere, harmlessly.
Value median(std::span<const Value> items);

/// The last item in the default order and the first, without positions. NaNs never win, and of infinities only the
/// finite end of the range remains where nothing else is left.
Value max(std::span<const Value> items);
Value min(std::span<const Value> items);

/// Variance of a population, (sum2 - sum^2 / n) / n, and of a sample, divided by n - 1 instead (22 for a single item);
/// complex items are squared, too. The standard deviations are their principal square roots. Every step of the formula
/// may raise its error, but the result is its exact value, rounded once: within 1 unit in the last place for real
/// items, which never have an imaginary or negative result, and within 2 units of the larger part for complex ones.
Value varP(std::span<const Value> items);
Value var(std::span<const Value> items);
Value sdP(std::span<const Value> items);
Value sd(std::span<const Value> items);

}  // namespace calquo
