// A corpus as a text file of pure ASCII: a line is an input, and what cannot be seen in it is escaped.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// An input as a line, without a line end: printable ASCII stands for itself, anything else, a backslash, and a blank
/// at the end are escaped as in C++ ("\n", "\\", "\x1f", which always has two digits).
std::string escapedInput(std::string_view bytes);

/// The input that a line stands for; ends the program with status 2 for an escape that escapedInput does not write.
std::string inputOf(std::string_view line);

/// The inputs of a corpus file in their order; ends the program with status 2 where it cannot be read.
std::vector<std::string> readCorpus(const char* file);

}  // namespace calquo
