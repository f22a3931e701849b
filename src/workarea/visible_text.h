// Text for a terminal, where control characters would be commands.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// The text with every control character but line ends and tabs, and every byte that is no UTF-8, as "\x1B": a
/// backslash and its number in hexadecimal.
std::string visibleText(std::string_view text);

/// `line` as a terminal shows it, and below it a caret under the character `position` bytes after its start.
std::string lineWithCaret(std::string_view line, std::size_t position);

/// What puts a caret below the character `position` bytes after the start of `line`: blanks, and tabs where the line
/// has them.
std::string indentTo(std::string_view line, std::size_t position);

}  // namespace calquo
