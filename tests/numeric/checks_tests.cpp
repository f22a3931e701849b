// Which numbers and values a check refuses, with which error, at which place.
#include "numeric/checks.h"

#include <gtest/gtest.h>

#include <limits>

namespace calquo {
namespace {

struct CheckRow {
    Real number;
    CheckFlags flags;
    ErrorCode code;  ///< InvalidExpression where nothing is refused
};

TEST(Checks, RefuseInAFixedOrder) {
    const CheckFlags all = CheckFlags::NoFraction | CheckFlags::NoNegative | CheckFlags::NoZero | CheckFlags::NoOne;
    const CheckRow rows[] = {
        {positiveInfinity, CheckFlags::None, ErrorCode::DomainRange},
        {-positiveInfinity, all, ErrorCode::DomainRange},
        {-1.5L, all, ErrorCode::FractionNotAllowed},
        {-1, all, ErrorCode::NegativeNotAllowed},
        {0, all, ErrorCode::CannotBeZero},
        {1, all, ErrorCode::CannotBeOne},
        {-1.5L, CheckFlags::None, ErrorCode::InvalidExpression},
        {2, all, ErrorCode::InvalidExpression},
        {std::numeric_limits<Real>::quiet_NaN(), all, ErrorCode::InvalidExpression},
    };
    for (const CheckRow& row : rows) {
        ErrorCode code = ErrorCode::InvalidExpression;
        try {
            checkNumber(row.number, row.flags | CheckFlags::Report);
        } catch (const Except& error) {
            code = error.code;
            EXPECT_EQ(errorPosition(), 0);
        }
        EXPECT_EQ(code, row.code) << row.number;
        EXPECT_EQ(checkNumber(row.number, row.flags), row.code == ErrorCode::InvalidExpression) << row.number;
    }
}

TEST(Checks, TakeAValueApart) {
    const Value literal = Value(1.5L, -2).at({3, 6, 9, 10});
    const auto refusedAt = [](const auto& check) {
        try {
            check();
        } catch (const Except&) {
            return errorPosition();
        }
        return std::int32_t{-1};
    };
    const auto report = CheckFlags::Report;
    EXPECT_EQ(refusedAt([&] { checkValue(literal, report | CheckFlags::RealOnly); }), 10);
    EXPECT_EQ(refusedAt([&] { checkValue(literal, report | CheckFlags::NoFraction); }), 6);
    EXPECT_EQ(refusedAt([&] { checkValue(literal, report | CheckFlags::NoNegative); }), 9);
    EXPECT_EQ(refusedAt([&] { checkValue(literal, report | CheckFlags::NoZero); }), -1);
    EXPECT_EQ(refusedAt([&] { requireReal(literal, report, 42); }), 42);
    EXPECT_TRUE(checkValue(Value(0, 1), CheckFlags::NoZero));
    EXPECT_FALSE(requireReal(Value(1, std::numeric_limits<Real>::quiet_NaN()), CheckFlags::None));
}

}  // namespace
}  // namespace calquo
