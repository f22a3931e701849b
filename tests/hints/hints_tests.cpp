// What is said about lines: the rows of the folder's text files, the lines of the help, which nothing is said about,
// and whether what is said is true.
#include "hints/hints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "console/options.h"
#include "engine/keywords.h"
#include "hints/correction.h"
#include "hints/first_look.h"
#include "hints/foreign_words.h"
#include "hints/function_examples.h"
#include "hints/misread_names.h"
#include "hints/rules.h"
#include "hints/trial.h"
#include "hints/unknown_names.h"
#include "workarea/written_answer.h"

namespace calquo {
namespace {

struct Said {
    std::string answer;
    std::string hint;
};

Said saidAbout(const std::string& line, const HintSettings& settings = {defaultFormats[0]}) {
    const std::string_view expression = expressionOf(line);
    Said said;
    Answer answer;
    if (!expression.empty()) {
        evaluateInto(answer, expression, settings.format);
        appendAnswer(said.answer, answer, ErrorPlace::Hidden);
    }
    said.hint = hintFor(line, expression.empty() ? nullptr : &answer, settings);
    return said;
}

/// The marks back at their defaults when it goes.
class OptionsInForce {
public:
    explicit OptionsInForce(const std::string& text) {
        reset();
        std::istringstream stream(text);
        const std::vector<std::string> words(std::istream_iterator<std::string>(stream), {});
        std::vector<const char*> arguments;
        std::ranges::transform(words, std::back_inserter(arguments), &std::string::c_str);
        const Options options = parseOptions(arguments);
        applyToEngine(options);
        format = options.format();
    }
    ~OptionsInForce() { reset(); }
    OptionsInForce(const OptionsInForce&) = delete;
    OptionsInForce& operator=(const OptionsInForce&) = delete;

    NumericFormat format = defaultFormats[0];

private:
    static void reset() {
        const std::vector<const char*> words = {"--decimal-mark", ".", "--group-mark", ","};
        applyToEngine(parseOptions(words));
    }
};

/// The texts in quotes after each "write" of a hint.
std::vector<std::string> linesToWrite(const std::string& hint) {
    static const std::regex advice("[Ww]rite(?:, for instance,)? \"(.*?)\"(?=[.,]|$)");
    std::vector<std::string> lines;
    for (std::sregex_iterator match(hint.begin(), hint.end(), advice), end; match != end; ++match) {
        lines.push_back((*match)[1]);
    }
    return lines;
}

void expectTrueAdvice(const std::string& hint) {
    for (const std::string& line : linesToWrite(hint)) {
        Answer answer;
        // tan(90 deg) has no value, and whoever asks for it is told so.
        EXPECT_TRUE(evaluates(line, defaultFormats[0], answer) || answer.error == ErrorCode::DivisionByZero ||
                    hint.find("radians") != std::string::npos)
            << line << " in: " << hint;
    }
}

struct Row {
    std::string place, options, line, answer, hint;

    bool isSilent() const { return hint.starts_with("! "); }
};

std::vector<Row> rowsOf(const char* name) {
    std::ifstream stream(std::filesystem::path(CALQUO_TEST_LINES) / "../hints" / name, std::ios::binary);
    std::vector<Row> rows;
    std::string options;
    int number = 0;
    for (std::string text; std::getline(stream, text);) {
        ++number;
        if (text.starts_with("#:")) {
            options = text.substr(2);
        } else if (!text.starts_with('#') || text.find('\t') != std::string::npos) {
            Row row{std::string(name) + ":" + std::to_string(number), options, "", "", ""};
            std::istringstream columns(text);
            std::getline(columns, row.line, '\t');
            std::getline(columns, row.answer, '\t');
            std::getline(columns, row.hint, '\t');
            rows.push_back(row);
        }
    }
    return rows;
}

class HintRows : public testing::TestWithParam<const char*> {};

TEST_P(HintRows, SayWhatTheyShould) {
    const std::vector<Row> rows = rowsOf(GetParam());
    ASSERT_GE(rows.size(), 40U);
    for (const Row& row : rows) {
        const OptionsInForce options(row.options);
        const Said said = saidAbout(row.line, {options.format});
        EXPECT_EQ(said.answer, row.answer) << row.place;
        EXPECT_EQ(said.hint, row.isSilent() ? "" : row.hint) << row.place;
        expectTrueAdvice(said.hint);
    }
    EXPECT_LE(static_cast<std::size_t>(std::ranges::count_if(rows, &Row::isSilent)) * 10, rows.size());
}

INSTANTIATE_TEST_SUITE_P(Files, HintRows, testing::Values("tasks.txt", "questions.txt"),
                         [](const auto& info) { return std::filesystem::path(info.param).stem().string(); });

/// The part of a text that its findings do not change, up to the first of them.
std::string_view beginningOf(std::string_view say) { return say.substr(0, std::min(say.find("%1"), say.find("%2"))); }

TEST(Hints, EveryRowOfTheTablesSpeaksAboutItsExample) {
    std::set<std::string_view> occasions;
    const auto check = [&](const auto& row) {
        const std::string hint = saidAbout(std::string(row.example)).hint;
        EXPECT_NE(hint.find(beginningOf(row.say)), std::string::npos) << row.example << ": " << hint;
        EXPECT_FALSE(hint.empty()) << row.example;
        EXPECT_TRUE(occasions.insert(row.when).second) << row.when;
        expectTrueAdvice(hint);
    };
    std::ranges::for_each(hintRules(), check);
    std::ranges::for_each(corrections(), check);
}

TEST(Hints, TheFirstLookLeavesOutNoRuleThatFinds) {
    std::vector<std::string> lines;
    for (const char* const file : {"tasks.txt", "questions.txt", "surprises.txt"}) {
        std::ranges::transform(rowsOf(file), std::back_inserter(lines), &Row::line);
    }
    for (const Rule& rule : hintRules()) {
        lines.emplace_back(rule.example);
    }
    std::size_t found = 0;
    for (const std::string& line : lines) {
        const WordsOfLine words(expressionOf(line));
        Answer answer;
        evaluateInto(answer, expressionOf(line), defaultFormats[0]);
        const HintSettings settings{defaultFormats[0]};
        const bool hasExpression = !expressionOf(line).empty();
        const Situation situation{line, expressionOf(line), words, hasExpression ? &answer : nullptr, settings};
        const RuleSet asked = answer.failed && hasExpression ? 0 : rulesToAsk(situation);
        for (std::size_t i = 0; i < hintRules().size() && !(answer.failed && hasExpression); ++i) {
            Findings findings;
            const bool finds = hintRules()[i].finds(situation, findings);
            EXPECT_TRUE(!finds || (asked >> i & 1) != 0) << line << ": " << hintRules()[i].when;
            found += finds ? 1 : 0;
        }
    }
    EXPECT_GT(found, hintRules().size());
}

TEST(Hints, TheAngleOptionOfTheButtonsCounts) {
    const std::map<std::pair<std::string, std::string_view>, std::string> rows = {
        {{"sin(3)", ""}, ""},
        {{"sin(3)", "deg"}, "\"sin(3)\" takes its angle in radians. With the unit write \"sin(3 deg)\"."},
        {{"sin(30)", "grad"}, "\"sin(30)\" takes its angle in radians. With the unit write \"sin(30 grad)\"."},
        {{"sin(30)", "rad"}, ""},
        {{"aTan(2)", ""}, ""},
        {{"aTan(2)", "grad"}, "The angle is in radians. For \"grad\" write \"aTan(2) -> grad\"."},
        {{"aTan(1)", "rad"}, ""},
    };
    for (const auto& [situation, hint] : rows) {
        EXPECT_EQ(saidAbout(situation.first, {defaultFormats[0], situation.second}).hint, hint) << situation.first;
    }
}

TEST(Hints, AreNotSoughtForLongLines) {
    EXPECT_FALSE(saidAbout("sin(30)" + std::string(1990, ' ')).hint.empty());
    EXPECT_TRUE(saidAbout("sin(30)" + std::string(1994, ' ')).hint.empty());
}

TEST(Hints, LeaveTheErrorPositionAndTheRandomNumbersAsTheyAre) {
    Answer answer;
    evaluateInto(answer, "rndSeed(7)", defaultFormats[0]);
    evaluateInto(answer, "rnd", defaultFormats[0]);
    const Real expected = answer.value.re;
    evaluateInto(answer, "rndSeed(7)", defaultFormats[0]);
    saidAbout("rand()");
    saidAbout("randint(1; 6)");
    setErrorPosition(42);
    evaluates("2+", defaultFormats[0], answer);
    EXPECT_EQ(errorPosition(), 42);
    evaluateInto(answer, "rnd", defaultFormats[0]);
    EXPECT_EQ(answer.value.re, expected);
}

// --- Normal use -----------------------------------------------------------------------------------------------------

/// The lines "| `LINE` | `RESULT` |" of a page that have a result, whatever stands before them, and all else in code.
void readPage(const std::filesystem::path& page, std::vector<std::string>& lines, std::set<std::string>& code) {
    static const std::regex record("\\| `([^`]+)` \\| `([^`]*)`"), any("`([^`]+)`");
    std::ifstream stream(page);
    for (std::string text; std::getline(stream, text);) {
        std::smatch match;
        if (std::regex_search(text, match, record) && isWrittenAnswer(match[2].str()) &&
            !match[2].str().starts_with("Error")) {
            lines.push_back(match[1]);
        }
        for (std::sregex_iterator each(text.begin(), text.end(), any), end; each != end; ++each) {
            code.insert((*each)[1]);
        }
    }
}

/// The expressions of the tests' lines that have a result under the options of a first start.
std::vector<std::string> testedLines() {
    std::vector<std::string> lines;
    for (const auto& file : std::filesystem::directory_iterator(CALQUO_TEST_LINES)) {
        std::ifstream stream(file.path());
        bool isUsual = true;
        for (std::string text; std::getline(stream, text);) {
            if (text.starts_with('#')) {
                isUsual = text.starts_with("#:") ? text == "#:" : isUsual;
            } else if (isUsual && text.find("= Error") == std::string::npos) {
                lines.emplace_back(expressionOf(text));
            }
        }
    }
    return lines;
}

TEST(Hints, SayNothingAboutWhatTheHelpShowsAsNormalUse) {
    // What surprises, and is shown in the help for that reason.
    std::set<std::string> surprises;
    for (const Row& row : rowsOf("surprises.txt")) {
        surprises.insert(row.line);
    }
    std::set<std::string> met;
    const auto check = [&](const std::string& line, const std::string& place) {
        const std::string hint = saidAbout(line).hint;
        EXPECT_EQ(hint.empty(), !surprises.contains(line)) << place << ": " << line << ": " << hint;
        met.insert(line);
    };
    const std::filesystem::path help = CALQUO_HELP_SOURCES;
    std::vector<std::filesystem::path> pages = {help / "../README.md"};
    for (const auto& entry : std::filesystem::directory_iterator(help / "pages")) {
        if (entry.path().stem() != "hints") {
            pages.push_back(entry.path());
        }
    }
    std::set<std::string> code;
    for (const auto& page : pages) {
        std::vector<std::string> lines;
        readPage(page, lines, code);
        std::ranges::for_each(lines, [&](const std::string& line) { check(line, page.filename().string()); });
    }
    for (const std::string& line : testedLines()) {
        if (code.contains(line) && !met.contains(line)) {
            check(line, "tests/lines");
        }
    }
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        if (const std::string_view example = exampleOf(index); !example.empty()) {
            check(std::string(example), "function table");
        }
    }
    std::ranges::for_each(
        surprises, [&](const std::string& line) { EXPECT_TRUE(met.contains(line)) << line << " is in no page"; });
}

// --- The tables of words --------------------------------------------------------------------------------------------

bool isInLanguage(std::string_view word) {
    const std::size_t index = lookup(word);
    return index != 0 && bindingOf(index).as<ReservedName>() == nullptr;
}

/// A template with numbers for its arguments.
std::string tried(std::string_view form) {
    std::string text(form);
    for (const auto& [hole, argument] :
         std::map<std::string, std::string>{{"#0", "1; 2; 3"}, {"#1", "5"}, {"#2", "2"}}) {
        for (std::size_t place = text.find(hole); place != std::string::npos; place = text.find(hole)) {
            text.replace(place, hole.size(), argument);
        }
    }
    return text;
}

TEST(ForeignWords, AreNoNamesAndHaveWhatEvaluates) {
    std::set<std::string_view> words;
    const auto addWord = [&](std::string_view word) {
        EXPECT_TRUE(words.insert(word).second) << word << " stands twice";
    };
    for (const ForeignName& row : foreignNames()) {
        addWord(row.word);
        EXPECT_FALSE(isInLanguage(row.word)) << row.word;
        const auto phrase = foreignName(row.write) != nullptr ? foreignName(row.write)->write : row.write;
        EXPECT_TRUE(hasResult("(" + std::string(phrase) + ")")) << row.word;
    }
    for (const ForeignCall& row : foreignCalls()) {
        // "random" is a number, and with two arguments a call.
        EXPECT_TRUE(words.insert(row.word).second || foreignName(row.word) != nullptr) << row.word;
        EXPECT_FALSE(isInLanguage(row.word)) << row.word;
        EXPECT_TRUE(hasResult(tried(row.write))) << row.word << ": " << tried(row.write);
    }
    for (const MissingWord& row : missingWords()) {
        addWord(row.word);
        EXPECT_TRUE(!isInLanguage(row.word) || row.takesPrefix) << row.word;
    }
    for (const ForeignPhrase& row : foreignPhrases()) {
        EXPECT_TRUE(isInLanguage(row.write) || replacementFor(row.write)) << row.first << " " << row.second;
    }
    for (const PrefixLetter& row : prefixLetters()) {
        EXPECT_TRUE(isInLanguage(row.prefix)) << row.letter;
    }
    EXPECT_GE(words.size(), 150U);
}

TEST(ForeignWords, OddUnitsHaveAnotherSizeThanWhatIsWritten) {
    for (const OddUnit& row : oddUnits()) {
        Answer odd, usual;
        ASSERT_TRUE(evaluates(row.name, defaultFormats[0], odd) && evaluates(row.write, defaultFormats[0], usual))
            << row.name;
        EXPECT_NE(odd.value.re, usual.value.re) << row.name;
    }
}

TEST(UnknownNames, HaveTheNearestFirst) {
    const std::map<std::string_view, std::vector<std::string_view>> rows = {
        {"sqrrt", {"sqrt"}},          {"medain", {"median", "mean"}}, {"hors", {}}, {"kilometre2", {}}, {"q", {}},
        {"lightYaer", {"lightYear"}}, {"cosn", {"cos", "cosH"}},
    };
    for (const auto& [word, names] : rows) {
        EXPECT_EQ(nearestNames(word), names) << word;
    }
}

}  // namespace
}  // namespace calquo
