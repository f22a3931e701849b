// What a line of the work area means: which part of it is evaluated, what answer it gets, and how Enter rewrites
// it. Pure text in and out; the window and the console program share it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "format/numeric_format.h"
#include "values/errors.h"
#include "values/value.h"

namespace calquo {

/// The part of `line` that is evaluated: its text up to the first "=", without trailing characters of code 32 or
/// below. Empty when the "=" stands at index 0 or 1. A line of nothing but such characters comes back whole, so that
/// its evaluation reports the missing expression at its end.
std::string_view expressionOf(std::string_view line);

/// What evaluating an expression gave. Reuse one object for many lines: `text` keeps its storage.
struct Answer {
    bool failed = false;
    ErrorCode error = ErrorCode::InvalidExpression;  ///< Meaningful when `failed`.
    std::size_t position = 0;                        ///< Where the error lies, 0 to the expression's length.
    std::string text;                                ///< The result; empty when `failed`.
    Value value;                                     ///< What the text shows; meaningless when `failed`.
    std::uint64_t outputBase = 10;                   ///< In which base it shows it.
};

/// Evaluates `expression` and writes its value under `format` into `answer`, in the output base that the expression
/// asks for. Every engine error ends up in `answer`; none is thrown.
void evaluateInto(Answer& answer, std::string_view expression, NumericFormat format);

/// Whether an answer names the error position after an error message (" at 3").
enum class ErrorPlace : bool { Hidden, Shown };

/// Appends an answer to `output`: the result, or "Error (MESSAGE)".
void appendAnswer(std::string& output, const Answer& answer, ErrorPlace place);

/// Appends the one-line record of an answered expression to `output`: "EXPRESSION = ANSWER", or the bare expression
/// when the result reads the same.
void appendRecord(std::string& output, std::string_view expression, const Answer& answer, ErrorPlace place);

/// The two character styles of the work area.
enum class TextStyle : std::uint8_t { Normal, Result };

/// A run of text in one style. Lines end with "\n".
struct StyledText {
    std::string text;
    TextStyle style = TextStyle::Normal;
};

/// A change of a line's text, with offsets from the line's start. Only the characters from `begin` to `end` are
/// replaced, so that nothing outside them is lost; a selection may make `end` lie past the end of the line.
struct LineEdit {
    bool changes = false;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::vector<StyledText> pieces;
    std::size_t caret = 0;
    std::size_t carried = 0;      ///< How many characters before the caret are the result carried on.
    bool goesToNextLine = false;  ///< Nothing changes; the caret goes to the next line, made where there is none.
    std::optional<Answer> answer = std::nullopt;  ///< What the expression gave; none for a line without one.
};

/// Whether a failed line is somebody's words, such as "A = 12 m2, U = 0.24": its expression is one name that the
/// language does not know, letters beyond ASCII included, and what follows the "=" is no answer of the program.
bool isNote(std::string_view line, const Answer& answer);

/// The edit that Enter makes on `line`: an empty line gets a new line; a line without an expression stays as it is; a
/// number that prints as it was typed gets a new line; any other expression gets its result, an empty line, and the
/// result once more with the caret after it. A failed expression gets its error message, nothing is carried on, and
/// the caret goes to the mistake; but a note keeps its words, and the caret goes to the next line.
LineEdit editAfterEnter(std::string_view line, NumericFormat format);

/// The edit that puts the result of `line` in place of its selected characters, `begin` to `end`. A line without an
/// expression stays as it is, and one that fails gets its error message as after Enter.
LineEdit editWithResult(std::string_view line, std::size_t begin, std::size_t end, NumericFormat format);

}  // namespace calquo
