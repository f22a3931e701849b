// The work of calq, the console program: answers lines and checks saved records.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "console/options.h"
#include "workarea/record.h"

namespace calquo {

/// Answers one line after the other under the same options.
class LineAnswerer {
public:
    explicit LineAnswerer(const Options& options);

    /// Appends the answer to `line` and a line end to `output`: the result, the error, the record if the options ask
    /// for records, or nothing for a line without an expression. False when the line has an error.
    bool answer(std::string_view line, std::string& output);

    /// Evaluates a saved record again. When its result differs from the saved one, appends "PLACE: EXPRESSION = SAVED
    /// (now RESULT)" and a line end to `output` and returns false. Lines without "=" are no records. A saved error is
    /// compared with its position only when it has one.
    bool check(std::string_view line, std::string_view place, std::string& output);

    /// Where the error of the line that `answer` was last given lies, in characters from the line's start.
    std::size_t errorPlace() const { return latest_.position; }

private:
    /// The latest answer as text.
    const std::string& answerText(ErrorPlace shownOrHidden);

    NumericFormat format_;
    bool writesRecords_;
    ErrorPlace place_;
    Answer latest_;
    std::string text_;
};

/// `line`, and below it a caret under the character `position` characters after its start, for a terminal.
std::string lineWithCaret(std::string_view line, std::size_t position);

/// Runs the program with the arguments that follow its name; returns its exit status.
int runCalq(std::span<const char* const> arguments);

}  // namespace calquo
