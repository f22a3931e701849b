// The engine's entry: one line of text in, one value and an output base out.
#pragma once

#include <cstdint>
#include <string_view>

#include "values/value.h"

namespace calquo {

struct Evaluation {
    Value value;
    std::uint64_t outputBase = 10;  ///< 10 also when the line asks for none
};

/// Nesting of groups, calls, chained powers and prefix calls that a line may have.
constexpr int deepestNesting = 256;

/// Evaluates a line. Time grows in proportion to the line's length, and the depth of the stack is bounded. Raises any
/// of the numbered errors, the error position being the index in the line. A list takes less than 64 bytes an item;
/// error 9 ("limit exceeded") when there is no memory for it.
/// @param nestingLimit levels beyond which error 9 ("limit exceeded") is raised at the place that goes too deep
Evaluation evaluateLine(std::string_view line, int nestingLimit = deepestNesting);

}  // namespace calquo
