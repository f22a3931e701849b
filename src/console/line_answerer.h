// Lines and what calq writes for each: answers, records, JSON, hints, and what has changed since a record was saved.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "console/options.h"
#include "workarea/record.h"

namespace calquo {

/// Answers one line after the other under the same options.
class LineAnswerer {
public:
    explicit LineAnswerer(const Options& options);

    /// Appends the answer to `line` and a line end to `output`: the result, the error, the record or the object if the
    /// options ask for records or for JSON, or nothing for a line without an expression. False when the line has an
    /// error.
    bool answer(std::string_view line, std::string& output);

    /// Judges a saved record. When its answer is no longer the same (see isSameAnswer), appends "PLACE: EXPRESSION =
    /// SAVED (now RESULT)" and a line end to `output` and returns false. Lines without "=", and those where something
    /// else than an answer follows it, are no records.
    bool check(std::string_view line, std::string_view place, std::string& output);

    /// Where the error of the line that `answer` was last given lies, in bytes from the line's start.
    [[nodiscard]] std::size_t errorPlace() const { return latest_.position; }

    /// What should be told about the line that `answer` was last given; empty where there is nothing to say.
    [[nodiscard]] std::string hint(std::string_view line) const;

private:
    void evaluate(std::string_view expression);
    /// The latest answer as text: in full where the saved one shows more digits than the format.
    const std::string& answerBeside(std::string_view saved);

    NumericFormat format_;
    std::optional<std::uint32_t> digits_;
    bool writesRecords_;
    bool writesJson_;
    ErrorPlace place_;
    bool hasExpression_ = false;
    Answer latest_;
    std::string text_;
};

}  // namespace calquo
