// The examples of the functions' table.
#include "hints/function_examples.h"

#include <algorithm>

#include "engine/function_table.h"
#include "engine/keywords.h"

namespace calquo {

std::string_view exampleOf(std::size_t index) {
    const auto fits = [&](const FunctionRow& row) {
        return lookup(row.name) == index || (!row.otherName.empty() && lookup(row.otherName) == index);
    };
    const auto* const row = std::ranges::find_if(functionTable, fits);
    return row == functionTable.end() ? std::string_view() : row->example;
}

}  // namespace calquo
