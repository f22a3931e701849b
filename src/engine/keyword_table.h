// All names in one table: functions, units with their other names, prefixes and constants, merged, sorted and proved
// while compiling. Included where the whole table is needed at compile time, and nowhere else.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "engine/binding.h"
#include "engine/characters.h"
#include "engine/function_table.h"
#include "engine/keywords.h"
#include "units/named_constants.h"
#include "units/unit_table.h"

namespace calquo {

struct Keyword {
    std::string_view name;
    Binding binding;
    std::string_view description;
    std::string_view arguments = {};  ///< as the function's row says
};

/// Compares two names letter by letter and digit by digit without regard to case; each ends at its first character that
/// is neither. Negative, 0 or positive as a sorts before, with or after b.
constexpr int compareNames(std::string_view a, std::string_view b) {
    for (std::size_t i = 0;; ++i) {
        const char left = lowerCase(characterAt(a, i));
        const char right = lowerCase(characterAt(b, i));
        if (!isNameCharacter(left) || !isNameCharacter(right)) {
            return (isNameCharacter(left) ? 1 : 0) - (isNameCharacter(right) ? 1 : 0);
        }
        if (left != right) {
            return left < right ? -1 : 1;
        }
    }
}

/// Calls `visit` with every name, in the order of the tables.
template <typename Visit>
constexpr void forEachName(const Visit& visit) {
    for (const FunctionRow& row : functionTable) {
        visit(Keyword{row.name, row.binding, row.description, row.arguments});
        if (!row.otherName.empty()) {
            visit(Keyword{row.otherName, row.binding, row.description, row.arguments});
        }
    }
    for (const Unit& unit : unitTable) {
        visit(Keyword{unit.name, unit.value(), unit.description});
        for (const Alias& alias : unit.aliases) {
            visit(Keyword{alias.name, unit.value(), alias.description.empty() ? unit.description : alias.description});
        }
    }
    for (const NamedConstant& row : prefixes) {
        visit(Keyword{row.name, row.value, row.description});
    }
    for (const NamedConstant& row : namedConstants) {
        visit(Keyword{row.name, row.value, row.description});
    }
}

constexpr std::size_t countNames() {
    std::size_t count = 0;
    forEachName([&](const Keyword&) { ++count; });
    return count;
}

/// An empty row, which stands for no name, and the names in the order of the comparison.
inline constexpr std::array<Keyword, 1 + countNames()> keywordTable = [] {
    std::array<Keyword, 1 + countNames()> table;
    auto* next = table.begin();
    forEachName([&](const Keyword& keyword) { *++next = keyword; });
    std::sort(table.begin() + 1, table.end(),
              [](const Keyword& a, const Keyword& b) { return compareNames(a.name, b.name) < 0; });
    return table;
}();

static_assert(std::adjacent_find(keywordTable.begin(), keywordTable.end(),
                                 [](const Keyword& a, const Keyword& b) {
                                     return compareNames(a.name, b.name) >= 0;
                                 }) == keywordTable.end(),
              "no two names may differ only in case");

}  // namespace calquo
