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

/// The names in the order of the comparison, between two empty rows that bound the search.
inline constexpr std::array<Keyword, keywordCount + 2> keywordTable = [] {
    std::array<Keyword, keywordCount + 2> table;
    std::size_t count = 0;
    // Writing past the table would not compile.
    const auto append = [&](std::string_view name, const Binding& binding, std::string_view description,
                            std::string_view arguments = {}) {
        ++count;
        table.at(count) = {name, binding, description, arguments};
    };
    for (const FunctionRow& row : functionTable) {
        append(row.name, row.binding, row.description, row.arguments);
        if (!row.otherName.empty()) {
            append(row.otherName, row.binding, row.description, row.arguments);
        }
    }
    for (const Unit& unit : unitTable) {
        append(unit.name, unit.value(), unit.description);
        for (const Alias& alias : unit.aliases) {
            append(alias.name, unit.value(), alias.description.empty() ? unit.description : alias.description);
        }
    }
    for (const NamedConstant& row : prefixes) {
        append(row.name, row.value, row.description);
    }
    for (const NamedConstant& row : namedConstants) {
        append(row.name, row.value, row.description);
    }
    std::sort(table.begin() + 1, table.begin() + static_cast<std::ptrdiff_t>(count) + 1,
              [](const Keyword& a, const Keyword& b) { return compareNames(a.name, b.name) < 0; });
    return table;
}();

static_assert(!keywordTable[keywordCount].name.empty() && keywordTable[keywordCount + 1].name.empty(),
              "the language has 306 names");
static_assert(std::adjacent_find(keywordTable.begin() + 1, keywordTable.end() - 1,
                                 [](const Keyword& a, const Keyword& b) {
                                     return compareNames(a.name, b.name) >= 0;
                                 }) == keywordTable.end() - 1,
              "no two names may differ only in case");

}  // namespace calquo
