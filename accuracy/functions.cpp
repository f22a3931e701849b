// Puts the table together from the rows of numbers, whole numbers and lists.
#include "functions.h"

#include "rows.h"

namespace calquo {

std::span<const MeasuredFunction> measuredFunctions() {
    static const Rows table = [] {
        Rows rows;
        addNumberFunctions(rows);
        addWholeNumberFunctions(rows);
        addListFunctions(rows);
        return rows;
    }();
    return table.all();
}

std::span<const std::string_view> unmeasuredFunctions() {
    static constexpr std::string_view random[] = {"rndR"};
    return random;
}

}  // namespace calquo
