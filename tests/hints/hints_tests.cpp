// What is said about lines.
#include <gtest/gtest.h>

#include "hints/rules.h"

namespace calquo {
namespace {

std::string hintAbout(const std::string& line) {
    const std::string_view expression = expressionOf(line);
    Answer answer;
    if (!expression.empty()) {
        evaluateInto(answer, expression, defaultFormats[0]);
    }
    return hintFor(line, expression.empty() ? nullptr : &answer, {defaultFormats[0]});
}

TEST(Hints, AnOrdinaryLineHasNone) { EXPECT_EQ(hintAbout("2+3"), ""); }

TEST(Hints, EveryExampleHasItsHint) {
    for (const Rule& rule : hintRules()) {
        const std::string hint = hintAbout(std::string(rule.example));
        EXPECT_TRUE(hint.starts_with(rule.say.substr(0, rule.say.find('%')))) << rule.example << ": " << hint;
    }
}

}  // namespace
}  // namespace calquo
