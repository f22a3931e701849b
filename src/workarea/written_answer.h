// Which text after an "=" an evaluation has written, so that it may be replaced; anything else is somebody's own words.
#pragma once

#include <string_view>

namespace calquo {

/// Whether `text` reads like an answer that the program writes after an "=": a value in any format and base, under the
/// marks and group lengths in force ("1,234.5", "-2 3/4", "16'FF", "(1; -2)", "+inf"), or an error message ("Error
/// (unknown name)", also with its place " at 3"). Blanks around it do not count; a text of blanks is no answer.
bool isWrittenAnswer(std::string_view text);

}  // namespace calquo
