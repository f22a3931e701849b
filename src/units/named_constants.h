// The named numbers that are no units: decimal prefixes, e, pi, i, and the special values.
#pragma once

#include <array>
#include <limits>
#include <string_view>

#include "units/unit_table.h"
#include "values/extended.h"
#include "values/value.h"

namespace calquo {

struct NamedConstant {
    std::string_view name;
    Value value;
    std::string_view description;
};

/// Factors to be multiplied with a unit; each is described by its value written out.
inline constexpr std::array prefixes = {
    NamedConstant{"yocto", decimal(1e-24), ".000 000 000 000 000 000 000 001"},
    NamedConstant{"zepto", decimal(1e-21), ".000 000 000 000 000 000 001"},
    NamedConstant{"atto", decimal(1e-18), ".000 000 000 000 000 001"},
    NamedConstant{"femto", decimal(1e-15), ".000 000 000 000 001"},
    NamedConstant{"pico", decimal(1e-12), ".000 000 000 001"},
    NamedConstant{"nano", decimal(1e-9), ".000 000 001"},
    NamedConstant{"micro", decimal(1e-6), ".000 001"},
    NamedConstant{"milli", decimal(0.001), ".001"},
    NamedConstant{"centi", decimal(0.01), ".01"},
    NamedConstant{"deci", decimal(0.1), ".1"},
    NamedConstant{"deca", decimal(10), "10"},
    NamedConstant{"hecto", decimal(100), "100"},
    NamedConstant{"kilo", decimal(1000), "1000"},
    NamedConstant{"mega", decimal(1e6), "1 000 000"},
    NamedConstant{"giga", decimal(1e9), "1 000 000 000"},
    NamedConstant{"tera", decimal(1e12), "1 000 000 000 000"},
    NamedConstant{"peta", decimal(1e15), "1 000 000 000 000 000"},
    NamedConstant{"exa", decimal(1e18), "1 000 000 000 000 000 000"},
    NamedConstant{"zetta", decimal(1e21), "1 000 000 000 000 000 000 000"},
    NamedConstant{"yotta", decimal(1e24), "1 000 000 000 000 000 000 000 000"},
};

inline constexpr std::array namedConstants = {
    NamedConstant{"e", eulerNumber, "Euler value"},
    NamedConstant{"pi", pi, "Pi value"},
    NamedConstant{"i", Value(0, 1), "Imaginary value: sqrt(-1)"},
    NamedConstant{"inf", positiveInfinity, "Infinity"},
    NamedConstant{"NaN", std::numeric_limits<Real>::quiet_NaN(), "Not a number (quiet)"},
    NamedConstant{"qNaN", std::numeric_limits<Real>::quiet_NaN(), "Not a number (quiet)"},
    NamedConstant{"sNaN", std::numeric_limits<Real>::signaling_NaN(), "Not a number (signalling)"},
};

}  // namespace calquo
