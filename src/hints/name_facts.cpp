// Look-ups in the tables; see name_facts.h.
#include "hints/name_facts.h"

#include <vector>

namespace calquo {

const Unit* unitOf(std::string_view name) {
    // By the names' indices.
    static const std::vector<const Unit*> units = [] {
        std::vector<const Unit*> table(keywordCount() + 1, nullptr);
        for (const Unit& unit : unitTable) {
            table[lookup(unit.name)] = &unit;
            for (const Alias& alias : unit.aliases) {
                table[lookup(alias.name)] = &unit;
            }
        }
        return table;
    }();
    return units[lookup(name)];
}

bool isFunctionName(const Word& word) { return word.keyword != 0 && classOf(word.keyword) != ArgumentClass::None; }

bool isNumberName(const Word& word) { return word.keyword != 0 && classOf(word.keyword) == ArgumentClass::None; }

bool endsOperand(const Word& word) {
    return word.isNumber() || word.is(")") || word.is("%") || word.is("!") || (word.isName() && !isFunctionName(word));
}

}  // namespace calquo
