// Names that the language does not have: what is meant, and which of its names are near.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// What to write in place of a word: a name of the language or an expression; "" where the word is to be left out.
struct Replacement {
    std::string text;
    std::string_view note = {};  ///< What else there is to know, as a sentence.
};

/// What to write for a word that is no name: by the tables of foreign words, as a plural ("miles"), with the letter or
/// the name of a prefix before it ("kW", "kilometers"), or as a unit's description has it ("horsepower").
std::optional<Replacement> replacementFor(std::string_view word);

/// The names that a word is nearest to, three at most and the nearest first: a letter or two too many, too few, another
/// or in another order, or names that begin with the word. None where nothing is near.
std::vector<std::string_view> nearestNames(std::string_view word);

}  // namespace calquo
