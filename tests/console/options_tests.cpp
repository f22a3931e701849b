// The command line of calq, what it makes of the marks, and how it shows a mistake.
#include "console/options.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

#include "console/calq.h"

namespace calquo {
namespace {

std::vector<std::string> split(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

/// The options of a command line that is written with blanks between its arguments; `arguments` keeps them alive.
Options parse(const std::vector<std::string>& arguments) {
    std::vector<const char*> pointers;
    for (const std::string& argument : arguments) {
        pointers.push_back(argument.c_str());
    }
    return parseOptions(pointers);
}

std::string faultOf(const std::string& line) {
    try {
        parse(split(line));
    } catch (const OptionFault& fault) {
        return fault.message;
    }
    return "none";
}

TEST(Options, WrongOnesAreNamed) {
    struct Row {
        const char *line, *part;
    };
    const Row rows[] = {
        {"--recrod", "--recrod"},
        {"--=", "no option --;"},
        {"--record=yes", "takes no argument"},
        {"--format", "needs its KIND"},
        {"--format Rational2", "\"Rational2\""},
        {"--format=", "\"\""},
        {"--word 123456789", "\"123456789\""},
        {"--word 032A10G4", "\"032A10G4\""},
        {"--word 70000000", "no kind"},
        {"--decimal-mark ::", "\"::\""},
        {"--group-mark \xC2\xA0", "printable"},
        {"--seed -1", "\"-1\""},
        {"--seed 18446744073709551616", "below 2^64"},
        {"--seed 18446744073709551615", "none"},
        {"--check --record", "exclude"},
    };
    for (const Row& row : rows) {
        EXPECT_NE(faultOf(row.line).find(row.part), std::string::npos) << row.line;
    }
}

TEST(Options, CaretStandsUnderTheMistakeWhateverTheWidthOfWhatPrecedes) {
    EXPECT_EQ(lineWithCaret("2+", 2), "2+\n  ^\n");
    EXPECT_EQ(lineWithCaret("\t2 3", 3), "\t2 3\n\t  ^\n");
    EXPECT_EQ(lineWithCaret("\xC3\xA9+$", 3), "\xC3\xA9+$\n  ^\n");
    EXPECT_EQ(lineWithCaret("", 0), "\n^\n");
}

}  // namespace
}  // namespace calquo
