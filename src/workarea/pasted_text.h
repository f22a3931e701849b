// Text from other programs, in the language's own characters.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// What a person means who pastes `text`: each line that is seen is a line, ended by "\n"; the signs, digits, blanks
/// and quotes that web pages and word processors put for the language's own are taken for them, and what cannot be seen
/// is left out. Tabs between numbers, as they come from the cells of a table, separate the items of a list. Whatever
/// has no counterpart in the language stays. Takes time and memory in proportion to the length.
std::u16string pastedText(std::u16string_view text);

}  // namespace calquo
