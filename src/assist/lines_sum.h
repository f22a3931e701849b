// The sum of selected lines, as a line of the sheet.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "format/numeric_format.h"

namespace calquo {

struct LinesSum {
    std::string expression;   ///< "sum(1.5; 2; 80)"; empty where no line has a number.
    std::size_t leftOut = 0;  ///< Lines that are neither numbers nor blank.
    /// Where the sum's line goes, as an offset in the lines: after the end of the last one that is not blank, or at the
    /// beginning of one that only repeats the result of the line before, as Enter carries it on.
    std::size_t place = 0;
    bool replacesCarried = false;  ///< That line begins at the place.
};

/// The sum of the values of lines, which end with "\r". A line with a result gives the value behind it, with all its
/// digits where the shown ones are fewer; a number stands for itself, whatever blanks and currency signs are around it.
LinesSum sumOfLines(std::wstring_view lines, NumericFormat format);

/// What a person is told: which lines do not count. Empty where there is nothing to tell.
std::string hintAbout(const LinesSum& sum);

}  // namespace calquo
