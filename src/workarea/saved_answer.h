// Whether the answer that a saved line has is still the one that its expression gives.
#pragma once

#include <string_view>

#include "workarea/record.h"

namespace calquo {

/// Whether `saved`, an answer as isWrittenAnswer knows it, and today's answer are the same. A value need not have the
/// same text: it is enough that some format writes today's value in this way, so that it agrees with the saved one
/// within the digits shown. The zeros at the end of a whole number are digits that are shown, up to the eighth digit; a
/// fraction is the closest one with a denominator of up to 1 to 15 digits. The base of both must be the same. An error
/// is compared with its place only where the saved one has it.
bool isSameAnswer(std::string_view saved, const Answer& today);

}  // namespace calquo
