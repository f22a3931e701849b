// The character table. The decimal and the group mark are the user's to choose.
#include "engine/characters.h"

#include <string>

namespace calquo {
namespace {

/// Digits in the order of their values, the underscore, then one character for each token class.
constexpr std::size_t firstClass = 63;
std::array<char, 83> table = [] {
    constexpr std::string_view characters =
        "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_\\.,'@(); \t=+-*/^%!:>";
    std::array<char, 83> result{};
    static_assert(characters.size() == result.size());
    characters.copy(result.data(), result.size());
    return result;
}();

}  // namespace

char markCharacter(TokenClass tokenClass) { return table[firstClass + static_cast<std::size_t>(tokenClass)]; }

void setMarkCharacter(TokenClass tokenClass, char character) {
    if (character != '\0' && std::string_view(table.data(), table.size()).find(character) == std::string_view::npos) {
        table[firstClass + static_cast<std::size_t>(tokenClass)] = character;
    }
}

}  // namespace calquo
