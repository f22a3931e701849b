// The character table. The decimal and the group mark are the user's to choose.
#include "engine/characters.h"

#include <string_view>

namespace calquo {

constinit std::array<char, 83> characterTable = [] {
    constexpr std::string_view characters =
        "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_\\.,'@(); \t=+-*/^%!:>";
    std::array<char, 83> table{};
    static_assert(characters.size() == table.size());
    characters.copy(table.data(), table.size());
    return table;
}();

void setMarkCharacter(TokenClass tokenClass, char character) {
    const std::string_view taken(characterTable.data(), characterTable.size());
    if (character != '\0' && taken.find(character) == std::string_view::npos) {
        characterTable[firstClassInTable + static_cast<std::size_t>(tokenClass)] = character;
    }
}

}  // namespace calquo
