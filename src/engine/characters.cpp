// The character table. The decimal and the group mark are the user's to choose.
#include "engine/characters.h"

#include <algorithm>
#include <string_view>

namespace calquo {

consteval CharacterTable::CharacterTable() {
    constexpr std::string_view beforeMarks = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_\\";
    constexpr std::array marks{defaultDecimalMark, defaultGroupMark};
    constexpr std::string_view afterMarks = "'@(); \t=+-*/^%!:>";
    static_assert(beforeMarks.size() == indexOf(TokenClass::DecimalMark));
    static_assert(beforeMarks.size() + marks.size() + afterMarks.size() == std::tuple_size_v<decltype(characters_)>);
    auto place = characters_.begin();
    for (const std::string_view part : {beforeMarks, std::string_view(marks.data(), marks.size()), afterMarks}) {
        place = std::ranges::copy(part, place).out;
    }
    // The ">" at the end only completes an arrow.
    for (std::size_t index = firstClass; index + 1 < characters_.size(); ++index) {
        classes_[static_cast<unsigned char>(characters_[index])] = static_cast<TokenClass>(index - firstClass);
    }
}

constinit CharacterTable characterTable;

bool CharacterTable::isFreeForMarks(char character) const {
    const bool isMark = character == mark(TokenClass::DecimalMark) || character == mark(TokenClass::GroupMark);
    const bool isTaken = std::find(characters_.begin(), characters_.end(), character) != characters_.end();
    return character != '\0' && (isMark || !isTaken);
}

void CharacterTable::setMark(TokenClass tokenClass, char character) {
    characters_[indexOf(tokenClass)] = character;
    classes_[static_cast<unsigned char>(character)] = tokenClass;
}

void setMarks(char decimalMark, char groupMark) {
    const char oldDecimal = markCharacter(TokenClass::DecimalMark);
    const char oldGroup = markCharacter(TokenClass::GroupMark);
    const char decimal = characterTable.isFreeForMarks(decimalMark) ? decimalMark : oldDecimal;
    const bool keepsGroup = groupMark == decimal || !characterTable.isFreeForMarks(groupMark);
    const char group = keepsGroup ? oldGroup : groupMark;
    if (group == decimal) {
        return;
    }
    for (const char old : {oldDecimal, oldGroup}) {
        characterTable.classes_[static_cast<unsigned char>(old)] = TokenClass::None;
    }
    characterTable.setMark(TokenClass::DecimalMark, decimal);
    characterTable.setMark(TokenClass::GroupMark, group);
}

void setGroupLengths(std::uint32_t shortest, std::uint32_t longest) {
    characterTable.shortestGroup_ = shortest;
    characterTable.longestGroup_ = longest;
}

}  // namespace calquo
