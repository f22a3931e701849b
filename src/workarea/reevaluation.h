// All lines of a sheet evaluated anew, as changes of its text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "format/numeric_format.h"

namespace calquo {

/// A new result in place of the characters of a text from `begin` to `end`.
struct ResultEdit {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string result;
};

struct Reevaluation {
    std::vector<ResultEdit> edits;  ///< For each result that differs from what stands there, in the order of the text.
    std::size_t evaluated = 0;      ///< Lines that have a result, those that fail included.
    std::size_t failed = 0;
    bool isWritten = true;  ///< False where the text is too long for new results.
};

/// Evaluates each line of `text` that has an answer of the program after its "=", under `format`. The answer alone is
/// changed; a line that fails stays as it is, be it because it is a note ("rent = 800"). Lines end with "\r" or "\n".
/// @param text as the engine reads it
Reevaluation reevaluate(std::string_view text, NumericFormat format);

/// Where a position of the text comes to lie. What stood inside of a result goes to its end at most.
std::size_t positionAfter(const std::vector<ResultEdit>& edits, std::size_t position);

/// What a person is told: how many results differ from what stood there, and how many lines have an error.
std::string hintAbout(const Reevaluation& outcome);

}  // namespace calquo
