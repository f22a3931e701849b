// Look-ups in the tables; see name_facts.h.
#include "hints/name_facts.h"

#include <algorithm>

namespace calquo {

const Unit* unitOf(std::string_view name) {
    const auto isCalled = [&](const Unit& unit) {
        return sameLetters(unit.name, name) ||
               std::ranges::any_of(unit.aliases, [&](const Alias& alias) { return sameLetters(alias.name, name); });
    };
    const auto* const unit = std::ranges::find_if(unitTable, isCalled);
    return unit == unitTable.end() ? nullptr : unit;
}

bool isFunctionName(const Word& word) {
    const std::size_t index = word.isName() ? lookup(word.text) : 0;
    return index != 0 && classOf(index) != ArgumentClass::None;
}

bool isNumberName(const Word& word) {
    const std::size_t index = word.isName() ? lookup(word.text) : 0;
    return index != 0 && classOf(index) == ArgumentClass::None;
}

bool endsOperand(const Word& word) {
    return word.isNumber() || word.is(")") || word.is("%") || word.is("!") || (word.isName() && !isFunctionName(word));
}

}  // namespace calquo
