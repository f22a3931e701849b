// The characters that end a line wherever text comes from, so that a line that is seen is a line.
#pragma once

namespace calquo {

/// Line feed, vertical tab (a word processor's line break), form feed, carriage return, next line, line and paragraph
/// separator.
constexpr bool breaksLine(char32_t code) {
    return (code >= U'\n' && code <= U'\r') || code == 0x85 || code == 0x2028 || code == 0x2029;
}

}  // namespace calquo
