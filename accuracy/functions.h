// The functions and operators whose accuracy is measured, where, and what their exact values are.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "arguments.h"
#include "exact.h"

namespace calquo {

using Arguments = std::span<const std::complex<Real>>;

/// What a function is held against.
enum class Reference {
    Exact,   ///< The exact value of its formula: 1 unit in the last place for a real one, 2 for a complex one.
    Steps,   ///< A sequence of steps that are rounded one by one: the very same number.
    Series,  ///< A series of which each step is rounded; its error is shown, and not bounded.
};

struct MeasuredFunction {
    std::string name;             ///< As in the table of keywords, or an operator.
    std::string line;             ///< With # for each argument, or #... for a list.
    std::vector<Region> regions;  ///< Of each argument; of a list's items.
    std::function<Exact(Arguments)> exact;
    Reference reference = Reference::Exact;
    /// Makes arguments out of random ones where not all combinations make sense.
    std::function<void(std::vector<std::complex<Real>>&)> adjust = {};
};

/// Every function and operator, with a row for each region.
std::span<const MeasuredFunction> measuredFunctions();

/// The names of functions that have no row, because no value of theirs is right or wrong.
std::span<const std::string_view> unmeasuredFunctions();

}  // namespace calquo
