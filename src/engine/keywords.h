// Every name of the language: its lookup, without regard to case, and what it stands for.
#pragma once

#include <cstddef>
#include <string_view>

#include "engine/binding.h"

namespace calquo {

/// Number of names. A name is identified by its index, 1 to this number, in the order of the comparison; 0 is no name.
std::size_t keywordCount();

/// The index of a name, 0 when it is not in the table.
std::size_t lookup(std::string_view name);

/// Whether a whole name of the table stands at an index of the line. Never raises, however long the name.
bool keywordAt(std::string_view line, std::size_t index);

/// For an index of 0 or beyond the table: an empty name, class None, an empty description.
std::string_view nameOf(std::size_t index);
ArgumentClass classOf(std::size_t index);
std::string_view descriptionOf(std::size_t index);
/// What stands between a function's parentheses; empty for other names.
std::string_view argumentsOf(std::size_t index);

/// What a name's index stands for.
const Binding& bindingOf(std::size_t index);

}  // namespace calquo
