// What zeros of either sign, infinities, NaNs and both sides of every cut give, held against edges.txt.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "engine/keywords.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// "RE,IM" as C's library reads it.
Value valueOf(const std::string& text) {
    char* end = nullptr;
    const Real re = std::strtold(text.c_str(), &end);
    return Value(re, std::strtold(end + 1, nullptr)).at({1, 2, 3, 4});
}

/// The number to four digits, NaNs and zeros without their sign, which nothing shows or asks for.
std::string textOf(Real number) {
    char text[32];
    const bool isUnsigned = std::isnan(number) || number == 0;
    std::snprintf(text, sizeof text, "%.4g", static_cast<double>(isUnsigned ? std::fabs(number) : number));
    return text;
}

/// What "NAME", "NAME z W" or "NAME W z" gives for z: "RE,IM" or "eCODE@POSITION".
std::string answer(const std::string& call, const Value& z) {
    std::istringstream words(call);
    std::string name, first, second;
    words >> name >> first >> second;
    const Binding& binding = bindingOf(lookup(name));
    setErrorPosition(0);
    try {
        const Value result = second.empty() ? (*binding.as<UnaryFunction>())(z)
                             : first == "z" ? (*binding.as<BinaryFunction>())(z, valueOf(second))
                                            : (*binding.as<BinaryFunction>())(valueOf(first), z);
        return textOf(result.re) + "," + textOf(result.im);
    } catch (const Except& error) {
        return "e" + std::to_string(static_cast<int>(error.code)) + "@" + std::to_string(errorPosition());
    }
}

TEST(Edges, GiveWhatStandsInTheTable) {
    const std::string path = CALQUO_TEST_LINES "/../numeric/edges.txt";
    std::ifstream stream(path);
    std::string line, arguments;
    int calls = 0;
    while (std::getline(stream, line)) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::string call = line.substr(0, line.find(':'));
        if (call == "z") {
            arguments = line.substr(2);
            continue;
        }
        std::string actual = call + ":";
        std::istringstream words(arguments);
        for (std::string argument; words >> argument;) {
            actual += " " + answer(call, valueOf(argument));
        }
        EXPECT_EQ(actual, line) << "for z:" << arguments;
        ++calls;
    }
    EXPECT_GT(calls, 0);
}

}  // namespace
}  // namespace calquo
