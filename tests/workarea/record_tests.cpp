// Lines of the work area as a person leaves them, and what evaluating or pressing Enter makes of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "workarea/enter_rows.h"

#include "workarea/record.h"

namespace calquo {
namespace {

constexpr NumericFormat automatic = defaultFormats[static_cast<std::size_t>(FormatKind::Automatic)];
constexpr NumericFormat rational = defaultFormats[static_cast<std::size_t>(FormatKind::Rational)];

struct ExpressionRow {
    std::string_view line, expression;
};

TEST(Record, ExpressionEndsAtTheFirstEqualsSign) {
    const ExpressionRow rows[] = {
        {"2+3", "2+3"},
        {"2+3 = 9", "2+3"},
        {"2+3 \t= 9 = 10", "2+3"},
        {"  2+3 \r", "  2+3"},
        {"=5", ""},
        {"5=9", ""},
        {" =9", ""},
        {"55=9", "55"},
        {"  =9", ""},
        {"", ""},
        {" \t ", " \t "},
        {"2+\xE9 ", "2+\xE9"},
        {std::string_view("2+3\0", 4), "2+3"},
    };
    for (const ExpressionRow& row : rows) {
        EXPECT_EQ(expressionOf(row.line), row.expression) << row.line;
    }
}

/// `edit` applied to `line`, with "<...>" around result style and "|" for the caret; one that changes nothing leaves
/// the caret behind.
std::string picture(std::string_view line, const LineEdit& edit) {
    if (!edit.changes) {
        return std::string(line) + '|';
    }
    std::string text(line.substr(0, edit.begin));
    std::string styles(edit.begin, 'n');
    for (const StyledText& piece : edit.pieces) {
        text += piece.text;
        styles.append(piece.text.size(), piece.style == TextStyle::Result ? 'r' : 'n');
    }
    text += line.substr(std::min(edit.end, line.size()));
    std::string drawn;
    for (std::size_t index = 0; index <= text.size(); ++index) {
        const bool result = index < styles.size() && styles[index] == 'r';
        const bool resultBefore = index > 0 && index <= styles.size() && styles[index - 1] == 'r';
        if (resultBefore && !result) {
            drawn += '>';
        }
        if (index == edit.caret) {
            drawn += '|';
        }
        if (result && !resultBefore) {
            drawn += '<';
        }
        if (index < text.size()) {
            drawn += text[index];
        }
    }
    return drawn;
}

TEST(Record, EnterWritesTheResultBehindTheExpression) {
    for (const EnterRow& row : enterRows) {
        EXPECT_EQ(picture(row.line, editAfterEnter(row.line, automatic)), row.after) << row.line;
    }
}

TEST(Record, EnterWritesInTheChosenFormat) {
    EXPECT_EQ(picture("0.75", editAfterEnter("0.75", rational)), "0.75< = 3/4>\n\n3/4|");
    EXPECT_EQ(picture("3/4", editAfterEnter("3/4", rational)), "3/4\n|");
}

TEST(Record, ResultTakesThePlaceOfTheSelection) {
    for (const InPlaceRow& row : inPlaceRows) {
        EXPECT_EQ(picture(row.line, editWithResult(row.line, row.begin, row.end, automatic)), row.after) << row.line;
    }
}

struct RecordRow {
    std::string_view expression, hidden, shown;
};

TEST(Record, OneLineRecordNamesResultOrError) {
    const RecordRow rows[] = {
        {"2+3*4", "2+3*4 = 14", "2+3*4 = 14"},
        {"14", "14", "14"},
        {"2+", "2+ = Error (invalid format)", "2+ = Error (invalid format) at 2"},
    };
    Answer answer;
    for (const RecordRow& row : rows) {
        evaluateInto(answer, row.expression, automatic);
        std::string hidden = "kept ", shown;
        appendRecord(hidden, row.expression, answer, ErrorPlace::Hidden);
        appendRecord(shown, row.expression, answer, ErrorPlace::Shown);
        EXPECT_EQ(hidden, "kept " + std::string(row.hidden));
        EXPECT_EQ(shown, row.shown);
    }
}

TEST(Record, AnAnswerObjectForgetsThePreviousLine) {
    Answer answer;
    evaluateInto(answer, "2+", automatic);
    EXPECT_TRUE(answer.failed);
    evaluateInto(answer, "2+3", automatic);
    EXPECT_FALSE(answer.failed);
    EXPECT_EQ(answer.text, "5");
    evaluateInto(answer, "2)", automatic);
    EXPECT_TRUE(answer.failed);
    EXPECT_EQ(answer.text, "");
    EXPECT_EQ(answer.error, ErrorCode::Parentheses);
}

}  // namespace
}  // namespace calquo
