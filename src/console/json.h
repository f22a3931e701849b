// Answers as JSON, one object a line.
#pragma once

#include <string>
#include <string_view>

#include "workarea/record.h"

namespace calquo {

/// Appends a line and what it gave as an object without a line end:
///
///     {"line":"1/3","value":{"re":"0.33333333333333333334","im":"0"},"answer":"0.33333"}
///     {"line":"2+","error":{"code":7,"message":"invalid format","position":2}}
///     {"line":""}
///
/// The parts of a value are texts of the fewest decimal digits that read back as the same, with a point whatever the
/// decimal mark: most readers of JSON would round numbers to doubles, and know no infinity. The position counts
/// bytes.
/// @param answer null for a line without an expression
/// @param hint empty where there is none
void appendJson(std::string& output, std::string_view line, const Answer* answer, std::string_view hint = {});

}  // namespace calquo
