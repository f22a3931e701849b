// Every name of the language with arguments that nobody would type: an answer or a clear error, never anything else.
#include <gtest/gtest.h>

#include <string>

#include "engine/evaluator.h"
#include "engine/function_table.h"
#include "engine/keywords.h"
#include "format/value_writer.h"
#include "support/hostile_calls.h"
#include "values/errors.h"

namespace calquo {
namespace {

class Names : public testing::TestWithParam<std::size_t> {};

TEST_P(Names, AnswerHostileArguments) {
    for (const std::string& line : hostileCalls(GetParam())) {
        try {
            const Evaluation evaluation = evaluateLine(line);
            EXPECT_FALSE(FormatValue(evaluation.value, defaultFormats[0], 10).empty()) << line.substr(0, 200);
        } catch (const Except& error) {
            EXPECT_STRNE(errorMessage(error.code), errorMessage(ErrorCode::InvalidExpression)) << line.substr(0, 200);
            EXPECT_NE(error.code, ErrorCode::InternalFault) << line.substr(0, 200);
            EXPECT_GE(errorPosition(), 0) << line.substr(0, 200);
            EXPECT_LE(errorPosition(), static_cast<std::int32_t>(line.size())) << line.substr(0, 200);
        }
    }
}

TEST(NameTable, EveryNameIsDescribedAndEveryExampleWorks) {
    for (std::size_t keyword = 1; keyword <= keywordCount(); ++keyword) {
        EXPECT_FALSE(descriptionOf(keyword).empty()) << nameOf(keyword);
    }
    for (const FunctionRow& row : functionTable) {
        if (row.binding.as<ReservedName>() != nullptr) {
            continue;
        }
        EXPECT_NE(row.example.find(row.name), std::string_view::npos) << row.name;
        EXPECT_NO_THROW(evaluateLine(row.example)) << row.example;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Names, testing::Range(std::size_t{1}, keywordCount() + 1),
                         [](const auto& info) { return std::string(nameOf(info.param)); });

}  // namespace
}  // namespace calquo
