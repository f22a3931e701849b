// All rules, in the order in which they are asked.
#pragma once

#include <span>

#include "hints/rule.h"

namespace calquo {

std::span<const Rule> hintRules();

/// How many there may be: the first look at a line has a bit for each.
inline constexpr std::size_t mostHintRules = 64;

}  // namespace calquo
