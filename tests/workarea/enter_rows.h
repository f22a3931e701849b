// What keys make of a line, as rows for the pure functions and for the real control. "<...>" stands around text in the
// result style, "|" for the caret.
#pragma once

#include <cstddef>
#include <string_view>

namespace calquo {

/// A line with the caret at its end, and what Enter makes of it.
struct EnterRow {
    std::string_view line, after;
};

inline constexpr EnterRow enterRows[] = {
    {"", "\n|"},
    {"2+3", "2+3< = 5>\n\n5|"},
    {"2+3 = 9", "2+3< = 5>\n\n5|"},
    {"2+3   ", "2+3< = 5>\n\n5|"},
    {"  2+3= Error (incomplete)", "  2+3< = 5>\n\n5|"},
    {"14", "14\n|"},
    {"14 = 15", "14\n|"},
    {"14  ", "14\n|"},
    {" 14", " 14< = 14>\n\n14|"},
    {"= 14", "= 14|"},
    {"5=9", "5=9|"},
    {"   = 14", "   = 14|"},
    {"'16 255", "'16 255< = 16'FF>\n\n16'FF|"},
    {"(1; 2)^2", "(1; 2)^2< = (-3; 4)>\n\n(-3; 4)|"},
    {"1/4", "1/4< = 0.25>\n\n0.25|"},
    {"2+", "2+|< = Error (invalid format)>"},
    {"2) = 4", "2|)< = Error (parentheses)>"},
    {"  ", "  |< = Error (invalid format)>"},
    {"2+\xE9", "2+|\xE9< = Error (invalid format)>"},
    {"2\\{3}", "2|\\{3}< = Error (invalid format)>"},
};

/// A line with a selection from `begin` to `end`, and what evaluating it into the selection makes of it.
struct InPlaceRow {
    std::string_view line;
    std::size_t begin, end;
    std::string_view after;
};

inline constexpr InPlaceRow inPlaceRows[] = {
    {"2+3", 3, 3, "2+35|"},
    {"2+3", 0, 3, "5|"},
    {"2+3 = 9", 6, 7, "2+3 = 5|"},
    {"2+3*4", 2, 5, "2+14|"},
    {"2+", 2, 2, "2+|< = Error (invalid format)>"},
    {"= 4", 3, 3, "= 4|"},
    {"", 0, 0, "|"},
};

}  // namespace calquo
