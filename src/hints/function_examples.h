// The example lines of the functions.
#pragma once

#include <cstddef>
#include <string_view>

namespace calquo {

/// A line to try for the name of an index; empty for names that are no functions.
std::string_view exampleOf(std::size_t index);

}  // namespace calquo
