// The dimensions of the units, by the indices of their names.
#include "assist/name_dimension.h"

#include <vector>

#include "engine/keywords.h"
#include "units/unit_table.h"

namespace calquo {

std::string_view dimensionOf(std::size_t name) {
    static const std::vector<std::string_view> dimensions = [] {
        std::vector<std::string_view> table(1 + keywordCount());
        for (const Unit& unit : unitTable) {
            table[lookup(unit.name)] = unit.dimension;
            for (const Alias& alias : unit.aliases) {
                table[lookup(alias.name)] = unit.dimension;
            }
        }
        return table;
    }();
    return name < dimensions.size() ? dimensions[name] : std::string_view();
}

}  // namespace calquo
