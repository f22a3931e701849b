// What the tables of the language know about a word.
#pragma once

#include <string_view>

#include "engine/keywords.h"
#include "hints/words_of_line.h"
#include "units/unit_table.h"

namespace calquo {

/// The unit that a name stands for; null for every other word.
const Unit* unitOf(std::string_view name);

/// Whether a word is the name of a function, or of a number: a unit, a prefix, a constant.
bool isFunctionName(const Word& word);
bool isNumberName(const Word& word);

/// Whether a word is this name of the language, in whatever case.
inline bool isNamed(const Word& word, std::string_view name) { return word.isName() && sameLetters(word.text, name); }

/// Whether an operand ends with the word.
bool endsOperand(const Word& word);

}  // namespace calquo
