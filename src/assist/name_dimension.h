// What the names of the language measure.
#pragma once

#include <cstddef>
#include <string_view>

namespace calquo {

/// The dimension of a unit, as units/unit_table.h names it, by the index of any of its names; empty for other names.
std::string_view dimensionOf(std::size_t name);

}  // namespace calquo
