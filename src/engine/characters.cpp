// The character table. The decimal and the group mark are the user's to choose.
#include "engine/characters.h"

#include <string_view>

namespace calquo {

namespace {

constexpr std::string_view initialCharacters =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_\\.,'@(); \t=+-*/^%!:>";

constexpr std::array<TokenClass, 256> classifyCharacters() {
    std::array<TokenClass, 256> classes{};
    for (std::size_t i = firstClassInTable; i < initialCharacters.size(); ++i) {
        classes[static_cast<unsigned char>(initialCharacters[i])] = static_cast<TokenClass>(i - firstClassInTable);
    }
    return classes;
}

}  // namespace

constinit std::array<char, 83> characterTable = [] {
    std::array<char, 83> table{};
    static_assert(initialCharacters.size() == table.size());
    initialCharacters.copy(table.data(), table.size());
    return table;
}();

constinit std::array<TokenClass, 256> characterClasses = classifyCharacters();

void setMarkCharacter(TokenClass tokenClass, char character) {
    const std::string_view taken(characterTable.data(), characterTable.size());
    if (character != '\0' && taken.find(character) == std::string_view::npos) {
        char& entry = characterTable[firstClassInTable + static_cast<std::size_t>(tokenClass)];
        characterClasses[static_cast<unsigned char>(entry)] = TokenClass::None;
        characterClasses[static_cast<unsigned char>(character)] = tokenClass;
        entry = character;
    }
}

void setMarks(char decimalMark, char groupMark) {
    // Exchanging them needs a third place: the group mark waits on a character that nothing else uses.
    constexpr char waiting = '\x01';
    const char oldDecimal = markCharacter(TokenClass::DecimalMark);
    const char oldGroup = markCharacter(TokenClass::GroupMark);
    setMarkCharacter(TokenClass::GroupMark, waiting);
    setMarkCharacter(TokenClass::DecimalMark, decimalMark);
    setMarkCharacter(TokenClass::GroupMark, groupMark);
    // A refused group mark goes back to what it was, and when the decimal mark has taken that, both do.
    if (markCharacter(TokenClass::GroupMark) == waiting) {
        setMarkCharacter(TokenClass::GroupMark, oldGroup);
    }
    if (markCharacter(TokenClass::GroupMark) == waiting) {
        setMarkCharacter(TokenClass::DecimalMark, oldDecimal);
        setMarkCharacter(TokenClass::GroupMark, oldGroup);
    }
}

}  // namespace calquo
