// The keys of the window, as the help lists them.
#pragma once

#include <string>
#include <vector>

namespace calquo {

struct KeyRow {
    std::string keys;         ///< "Ctrl+S", or several joined by ", ".
    std::string explanation;  ///< In Markdown.
};

/// The keys of the program's own table, and after them those of `rows`, which are "KEYS: TEXT". Throws
/// std::invalid_argument for a row of another form, or of a key that the program's table explains.
std::vector<KeyRow> keyRows(const std::vector<std::string>& rows);

}  // namespace calquo
