// Details of values, calls and completions, held against the rows of details.txt and carets.txt.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "assist/call_arguments.h"
#include "assist/completion.h"
#include "assist/value_details.h"
#include "assist/value_forms.h"
#include "engine/characters.h"
#include "engine/evaluator.h"
#include "engine/keywords.h"
#include "workarea/record.h"

namespace calquo {
namespace {

/// The fields of a row, which stand between " | ".
using Row = std::vector<std::string>;

std::vector<Row> rowsOf(const std::string& file) {
    std::vector<Row> rows;
    std::ifstream stream(CALQUO_TEST_LINES "/../assist/" + file);
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        Row& row = rows.emplace_back();
        for (std::size_t begin = 0; begin <= line.size();) {
            const std::size_t end = std::min(line.find(" | ", begin), line.size());
            row.push_back(line.substr(begin, end - begin));
            begin = end + 3;
        }
    }
    return rows;
}

/// Such a value is equal to none.
bool hasNoNumber(std::string_view text) { return text.find("qNaN") != std::string_view::npos; }

std::string joined(const Row& row) {
    std::string text;
    for (const std::string& part : row) {
        text += (text.empty() ? "" : " | ") + part;
    }
    return text;
}

TEST(ValueDetails, AreThoseOfTheRowsAndReadBack) {
    const std::vector<Row> rows = rowsOf("details.txt");
    ASSERT_FALSE(rows.empty());
    for (const Row& row : rows) {
        Row found{row[0]};
        const std::vector<Detail> details = detailsOfLine(row[0]);
        for (const Detail& detail : details) {
            const bool isBack = hasNoNumber(detail.text) || readsAs(detail.text, evaluateLine(details[0].text).value);
            found.push_back((isBack ? "" : "~") + std::string(1, detail.letter) + " " + detail.text);
        }
        EXPECT_EQ(joined(found), joined(row));
        if (!details.empty() && !hasNoNumber(details[0].text) && row[0].find('=') == std::string::npos) {
            EXPECT_TRUE(readsAs(details[0].text, evaluateLine(row[0]).value)) << row[0];
        }
    }
}

TEST(ValueDetails, UseTheMarksInForce) {
    setMarks(',', '.');
    const std::vector<Detail> details = detailsOfLine("5/2 = 2,5");
    setMarks(defaultDecimalMark, defaultGroupMark);
    EXPECT_EQ(details.at(0).text, "2,5");
}

/// A line with "_" where the caret is.
struct Drawing {
    explicit Drawing(const std::string& drawn) : caret(drawn.find('_')), text(drawn) { text.erase(caret, 1); }

    std::size_t caret;
    std::string text;
};

std::string drawnCall(const Drawing& line) {
    const auto call = callAt(line.text, line.caret);
    if (!call) {
        return "-";
    }
    CallText text = textOf(*call);
    if (text.presentEnd != 0) {
        text.text.insert(text.presentEnd, ">").insert(text.presentBegin, "<");
    }
    return text.text;
}

/// The names of a completion, as many as the row gives.
std::string drawnNames(const std::vector<std::size_t>& names, const std::string& wanted) {
    std::string text;
    const bool isPart = wanted.ends_with(" ...");
    const auto count = isPart ? std::ranges::count(wanted, ' ') : std::ssize(names);
    for (std::ptrdiff_t index = 0; index < std::min(count, std::ssize(names)); ++index) {
        text += (index == 0 ? "" : " ") + std::string(nameOf(names[static_cast<std::size_t>(index)]));
    }
    return text.empty() ? "-" : text + (isPart ? " ..." : "");
}

std::string completed(Drawing line, const Completion& completion) {
    const std::string text = textFor(completion.names[0], line.text, completion) + "_";
    return line.text.replace(completion.begin, completion.end - completion.begin, text);
}

TEST(Carets, HaveTheCallsAndTheNamesOfTheRows) {
    const std::vector<Row> rows = rowsOf("carets.txt");
    ASSERT_FALSE(rows.empty());
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 4U) << joined(row);
        const Drawing line(row[0]);
        const auto completion = completionAt(line.text, line.caret);
        const bool hasNames = completion && !completion->names.empty();
        EXPECT_EQ(joined({row[0], drawnCall(line), hasNames ? drawnNames(completion->names, row[2]) : "-",
                          hasNames ? completed(line, *completion) : "-"}),
                  joined(row));
    }
}

TEST(Completion, KeepsANameApartFromWhatStandsBesideIt) {
    const auto taken = [](std::string_view name, std::string_view line, std::size_t caret) {
        return textFor(lookup(name), line, {caret, caret, {}, {}});
    };
    EXPECT_EQ(taken("acre", "sin(30)", 0), "acre ");
    EXPECT_EQ(taken("acre", "3+5", 2), "acre ");
    EXPECT_EQ(taken("sin", "30", 0), "sin(");
    EXPECT_EQ(taken("erg", "2", 1), " erg");
    EXPECT_EQ(taken("exp", "2.(3)", 2), " exp");
    EXPECT_EQ(taken("acre", "2", 1), "acre");
}

}  // namespace
}  // namespace calquo
