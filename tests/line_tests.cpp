// Runs the rows of tests/lines/*.txt: plain-text work areas whose every line must come out again as it stands there.
//
// A row is "EXPRESSION = RESULT", "EXPRESSION = Error (MESSAGE) at N", or a bare expression that is its own result.
// "#" begins a comment; "#: OPTION..." gives calq's options for the rows that follow, "#:" alone none.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "console/line_answerer.h"
#include "console/options.h"
#include "engine/keywords.h"
#include "workarea/record.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

struct Row {
    std::string place;  ///< "FILE:LINE"
    std::string text;
    std::vector<std::string> options;

    std::string expression() const { return std::string(expressionOf(text)); }
};

struct LineFile {
    std::string name;
    std::vector<Row> rows;
};

void PrintTo(const LineFile& file, std::ostream* stream) { *stream << file.name; }

LineFile readLineFile(const std::filesystem::path& path) {
    LineFile file{path.stem().string(), {}};
    std::ifstream stream(path, std::ios::binary);
    std::vector<std::string> options;
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        if (line.starts_with("#:")) {
            std::istringstream words(line.substr(2));
            options.assign(std::istream_iterator<std::string>(words), {});
        } else if (!line.empty() && line[0] != '#') {
            file.rows.push_back({path.filename().string() + ":" + std::to_string(number), line, options});
        }
    }
    return file;
}

const std::vector<LineFile>& lineFiles() {
    static const std::vector<LineFile> files = [] {
        std::vector<std::filesystem::path> paths;
        for (const auto& entry : std::filesystem::directory_iterator(CALQUO_TEST_LINES)) {
            if (entry.path().extension() == ".txt") {
                paths.push_back(entry.path());
            }
        }
        std::sort(paths.begin(), paths.end());
        std::vector<LineFile> all;
        for (const auto& path : paths) {
            all.push_back(readLineFile(path));
        }
        return all;
    }();
    return files;
}

/// The row's options, with the marks back at their defaults unless it sets them and the engine put in that state.
Options startRow(const Row& row) {
    std::vector<const char*> words = {"--decimal-mark", ".", "--group-mark", ","};
    applyToEngine(parseOptions(words));
    words = {"--record", "--position"};
    for (const std::string& option : row.options) {
        words.push_back(option.c_str());
    }
    Options options = parseOptions(words);
    applyToEngine(options);
    return options;
}

/// "RESULT" or "Error (MESSAGE) at N" for `expression` under the row's options; errors `shift` characters further left.
std::string answerTo(const Row& row, const std::string& expression, std::size_t shift = 0) {
    const Options options = startRow(row);
    Answer answer;
    evaluateInto(answer, expression, options.format());
    if (answer.failed) {
        answer.position -= std::min(shift, answer.position);
    }
    std::string text;
    appendAnswer(text, answer, ErrorPlace::Shown);
    return text;
}

bool isError(const std::string& answer) { return answer.starts_with("Error ("); }

/// "'16 " before an expression, or " '16" after it.
struct OutputBaseDirective {
    std::string front, back;
};

OutputBaseDirective directiveOf(const std::string& expression) {
    OutputBaseDirective directive;
    if (expression.starts_with('\'')) {
        directive.front = expression.substr(0, expression.find(' ') + 1);
    }
    const std::size_t blank = expression.find_last_of(" \t");
    if (blank != std::string::npos && expression.compare(blank + 1, 1, "'") == 0) {
        directive.back = expression.substr(blank);
    }
    return directive;
}

/// The rows "| `LINE` | `RESULT` |" of the tables in a page of documentation, as rows of tests.
std::vector<Row> rowsOfPage(const std::filesystem::path& path) {
    const std::string opening = "| `";
    const std::string middle = "` | `";
    std::ifstream stream(path, std::ios::binary);
    std::vector<Row> rows;
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        const std::size_t joint = line.find(middle);
        if (!line.starts_with(opening) || joint == std::string::npos) {
            continue;
        }
        const std::size_t result = joint + middle.size();
        const std::size_t closing = line.find('`', result);
        const std::string record =
            line.substr(opening.size(), joint - opening.size()) + " = " + line.substr(result, closing - result);
        rows.push_back({path.filename().string() + ":" + std::to_string(number), record, {}});
    }
    return rows;
}

TEST(Documentation, ExamplesGiveWhatIsSaid) {
    const std::vector<Row> rows = rowsOfPage(std::filesystem::path(CALQUO_TEST_LINES) / "../../README.md");
    ASSERT_FALSE(rows.empty());
    for (const Row& row : rows) {
        std::string differences;
        LineAnswerer(startRow(row)).check(row.text, row.place, differences);
        EXPECT_EQ(differences, "");
    }
}

class Lines : public testing::TestWithParam<LineFile> {};

TEST_P(Lines, ComeOutAsTheyStand) {
    ASSERT_FALSE(GetParam().rows.empty());
    for (const Row& row : GetParam().rows) {
        std::string record;
        LineAnswerer(startRow(row)).answer(row.text, record);
        EXPECT_EQ(record, row.text + "\n") << row.place;
    }
}

TEST_P(Lines, MeanTheSameAfterBlanksInCapitalsAndInParentheses) {
    for (const Row& row : GetParam().rows) {
        SCOPED_TRACE(row.place);
        const std::string expression = row.expression();
        const std::string answer = answerTo(row, expression);
        EXPECT_EQ(answerTo(row, " \t" + expression, 2), answer);
        std::string capitals = expression;
        for (char& character : capitals) {
            character = character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
        }
        EXPECT_EQ(answerTo(row, capitals), answer);
        const OutputBaseDirective directive = directiveOf(expression);
        if (!isError(answer) && directive.front.empty() && directive.back.empty()) {
            EXPECT_EQ(answerTo(row, "(" + expression + ")"), answer);
        }
        // A mixed fraction is a product when it is typed.
        const bool isMixedFraction = answer.find(' ') != std::string::npos && answer.find('/') != std::string::npos;
        if (!isError(answer) && !isMixedFraction) {
            EXPECT_EQ(answerTo(row, directive.front + answer + directive.back), answer);
        }
    }
}

TEST_P(Lines, HaveAnswersThatReadAsWritten) {
    for (const Row& row : GetParam().rows) {
        startRow(row);
        const std::size_t equals = row.text.find('=');
        EXPECT_TRUE(equals == std::string::npos || isWrittenAnswer(row.text.substr(equals + 1))) << row.place;
    }
}

INSTANTIATE_TEST_SUITE_P(Files, Lines, testing::ValuesIn(lineFiles()),
                         [](const auto& info) { return info.param.name; });

/// The names in a line, in lower case; digits of a literal in a base above 10 may look like one.
std::set<std::string> namesIn(const std::string& line) {
    std::set<std::string> names;
    std::string name;
    for (const char character : line + " ") {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 128 && (std::isalpha(byte) || (!name.empty() && std::isdigit(byte)))) {
            name += static_cast<char>(std::tolower(byte));
        } else if (!name.empty()) {
            names.insert(std::move(name));
            name.clear();
        }
    }
    return names;
}

TEST(LineCoverage, EveryNameAndEveryErrorStandInSomeRow) {
    std::set<std::string> names, errors;
    for (const LineFile& file : lineFiles()) {
        for (const Row& row : file.rows) {
            names.merge(namesIn(row.expression()));
            const std::string answer = answerTo(row, row.expression());
            errors.insert(answer.substr(0, answer.find(')') + 1));
        }
    }
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        EXPECT_TRUE(names.contains(*namesIn(std::string(nameOf(index))).begin())) << nameOf(index);
    }
    for (std::uint32_t code = 1; code <= static_cast<std::uint32_t>(ErrorCode::DivisionByZero); ++code) {
        // An internal fault is one of the program itself; no line may lead there.
        EXPECT_EQ(errors.contains(std::string("Error (") + errorMessage(code) + ")"),
                  static_cast<ErrorCode>(code) != ErrorCode::InternalFault)
            << errorMessage(code);
    }
}

}  // namespace
}  // namespace calquo
