// Lookup in the keyword table.
#include "engine/keywords.h"

#include "engine/keyword_table.h"
#include "engine/lexer.h"

namespace calquo {
namespace {

const Keyword& row(std::size_t index) { return keywordTable[index > keywordCount ? 0 : index]; }

}  // namespace

std::size_t lookup(std::string_view name) {
    std::size_t low = 1;
    std::size_t high = keywordCount;
    while (low <= high) {
        const std::size_t middle = (low + high) / 2;
        const int order = compareNames(name, keywordTable[middle].name);
        if (order == 0) {
            return middle;
        }
        if (order < 0) {
            high = middle - 1;
        } else {
            low = middle + 1;
        }
    }
    return 0;
}

bool keywordAt(std::string_view line, std::size_t index) {
    std::size_t length = 0;
    while (length <= longestName && isNameCharacter(characterAt(line, index + length))) {
        ++length;
    }
    return length <= longestName && lookup(line.substr(index, length)) != 0;
}

std::string_view nameOf(std::size_t index) { return row(index).name; }

ArgumentClass classOf(std::size_t index) { return row(index).binding.argumentClass(); }

std::string_view descriptionOf(std::size_t index) { return row(index).description; }

std::string_view argumentsOf(std::size_t index) { return row(index).arguments; }

const Binding& bindingOf(std::size_t index) { return keywordTable[index].binding; }

}  // namespace calquo
