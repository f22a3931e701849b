// All rules, in the order in which they are asked.
#pragma once

#include <span>

#include "hints/rule.h"

namespace calquo {

std::span<const Rule> hintRules();

}  // namespace calquo
