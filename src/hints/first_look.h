// Which rules a line may concern at all, by its characters and names: most lines are normal use, and cost no more.
#pragma once

#include <cstdint>

#include "hints/rule.h"

namespace calquo {

/// A bit for each rule, the first rule's the lowest.
using RuleSet = std::uint64_t;

RuleSet rulesToAsk(const Situation& situation);

}  // namespace calquo
