// The value that a line of the sheet stands for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "format/numeric_format.h"
#include "values/value.h"

namespace calquo {

struct LineValue {
    std::string shown;           ///< The result as it stands in the line, or as it would.
    std::optional<Value> value;  ///< None for a text that the language cannot read, such as "-inf".
};

/// The result of a line: what stands after its "=", and the value behind that, which may have more digits; where the
/// expression does not give what stands there, as in a note ("rent = 800"), the value that is written. A line without
/// "=" has the result that Enter would write. None for a line without a result, or with an error.
std::optional<LineValue> valueOf(std::string_view line, NumericFormat format);

/// The value with all its digits, as the language reads it back, and without group marks; in the base of `shown`.
/// Where the language cannot say it, what is shown.
std::string textInFull(const LineValue& line);

}  // namespace calquo
