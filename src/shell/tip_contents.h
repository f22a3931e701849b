// What the tips of the work area say, before any window exists.
#pragma once

#include <vector>

#include "assist/call_arguments.h"
#include "assist/completion.h"
#include "assist/value_details.h"
#include "widgets/tip_layout.h"

namespace calquo {

/// Whether the letters of the details copy them, or a click alone.
enum class DetailKeys : bool { None, Letters };

/// The forms of a value; a text that says so when there are none.
TipContent contentOf(const std::vector<Detail>& details, DetailKeys keys);

/// The names to choose from; a text that says so when there are none.
TipContent contentOf(const Completion& completion);

/// A call with its present argument in bold, and what the function is.
TipContent contentOf(const OpenCall& call);

}  // namespace calquo
