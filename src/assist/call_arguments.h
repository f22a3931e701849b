// Which function's parentheses hold the caret, and which of its arguments stands there.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace calquo {

/// A call that is being written.
struct OpenCall {
    std::size_t function = 0;  ///< The index of its name.
    std::size_t argument = 0;  ///< The number of the argument at the caret, from 0 on.
    std::size_t begin = 0;     ///< Where the name begins in the line.

    friend bool operator==(const OpenCall&, const OpenCall&) = default;
};

/// The innermost call of a function whose parentheses hold the caret; none outside, after the "=" of a result, and for
/// names that take no arguments. The line is read once, up to the caret.
std::optional<OpenCall> callAt(std::string_view line, std::size_t caret);

/// "pmt(first value; ...)": a call with the names of its arguments, those in brackets that may be left out.
struct CallText {
    std::string text;
    /// The present argument in the text; both 0 when there are fewer.
    std::size_t presentBegin = 0;
    std::size_t presentEnd = 0;
};

CallText textOf(const OpenCall& call);

/// The names of a function's arguments as textOf() has them, with their parentheses; empty for other names.
std::string argumentTextOf(std::size_t name);

}  // namespace calquo
