// Lookup in the keyword table.
#include "engine/keywords.h"

#include <algorithm>
#include <array>

#include "engine/keyword_table.h"
#include "engine/lexer.h"

namespace calquo {
namespace {

const Keyword& row(std::size_t index) { return keywordTable[index < keywordTable.size() ? index : 0]; }

constexpr std::size_t letterCount = 26;

constexpr std::size_t letterNumber(char letter) { return static_cast<std::size_t>(lowerCase(letter) - 'a'); }

static_assert(std::all_of(keywordTable.begin() + 1, keywordTable.end(),
                          [](const Keyword& keyword) { return isLetter(keyword.name.front()); }));

/// For each letter, the index of the first name that begins with it or with a later letter; after the last letter, the
/// end of the table.
constexpr std::array<std::size_t, letterCount + 1> firstWithLetter = [] {
    std::array<std::size_t, letterCount + 1> first{};
    std::size_t index = 1;
    for (std::size_t letter = 0; letter <= letterCount; ++letter) {
        while (index < keywordTable.size() && letterNumber(keywordTable[index].name.front()) < letter) {
            ++index;
        }
        first[letter] = index;
    }
    return first;
}();

}  // namespace

std::size_t keywordCount() { return keywordTable.size() - 1; }

std::size_t lookup(std::string_view name) {
    const char first = characterAt(name, 0);
    if (!isLetter(first)) {
        return 0;
    }
    std::size_t low = firstWithLetter[letterNumber(first)];
    std::size_t end = firstWithLetter[letterNumber(first) + 1];
    while (low < end) {
        const std::size_t middle = (low + end) / 2;
        const int order = compareNames(name, keywordTable[middle].name);
        if (order == 0) {
            return middle;
        }
        if (order < 0) {
            end = middle;
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
