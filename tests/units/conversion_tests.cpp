// Units: conversion there and back over the whole table, and the special values as they are stored.
#include "units/conversion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "units/named_constants.h"
#include "units/unit_table.h"
#include "values/extended.h"

namespace calquo {
namespace {

TEST(Units, ConversionThereAndBackIsTheSameNumber) {
    constexpr Real number = 37;
    for (const Unit& from : unitTable) {
        for (const Unit& to : unitTable) {
            if (from.dimension != to.dimension) {
                continue;
            }
            const Value there = convert(Value(number), from.value(), to.value());
            const Value back = convert(there, to.value(), from.value());
            EXPECT_NEAR(static_cast<double>(back.re - number), 0, 1e-15) << from.name << " to " << to.name;
            EXPECT_EQ(back.im, 0) << from.name << " to " << to.name;
            EXPECT_EQ(there.positions, Positions());
        }
    }
}

TEST(Units, SpecialValuesAreStoredBitForBit) {
    // A copy through arithmetic would make the signalling one quiet.
    for (const NamedConstant& constant : namedConstants) {
        if (!std::isnan(constant.value.re)) {
            continue;
        }
        const ExtendedBits bits = bitsOf(constant.value.re);
        EXPECT_EQ(bits.mantissa, constant.name == "sNaN" ? 0xA000000000000000U : 0xC000000000000000U) << constant.name;
        EXPECT_EQ(bits.signExponent, 0x7FFF) << constant.name;
    }
}

}  // namespace
}  // namespace calquo
