// What people write on other calculators, in spreadsheets and on paper, and how it is written here.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace calquo {

/// A word for a unit or a number that the language has under another name or as an expression.
struct ForeignName {
    std::string_view word;
    std::string_view write;      ///< A name, or an expression that stands for the word.
    bool takesPrefix = false;    ///< Also with the letter of a decimal prefix before it: kW, MHz.
    std::string_view note = {};  ///< What else there is to know, as a sentence.
};

/// A function that is written otherwise: "#1" to "#3" stand for its arguments.
struct ForeignCall {
    std::string_view word;
    std::string_view write;
};

/// A word that has no counterpart, and the sentence that says so. Where the rest of the line goes on without it, it is
/// left out.
struct MissingWord {
    std::string_view word;
    std::string_view reason;
    bool leftOut = false;
    bool takesPrefix = false;
};

std::span<const ForeignName> foreignNames();
std::span<const ForeignCall> foreignCalls();
std::span<const MissingWord> missingWords();

/// Two words that are one name.
struct ForeignPhrase {
    std::string_view first, second;
    std::string_view write;
};
std::span<const ForeignPhrase> foreignPhrases();

/// A letter that stands for a decimal prefix.
struct PrefixLetter {
    std::string_view letter;
    std::string_view prefix;
};
std::span<const PrefixLetter> prefixLetters();

/// The row of a word: the one in the same letters, else one in letters of another case; null when there is none.
const ForeignName* foreignName(std::string_view word);
const ForeignCall* foreignCall(std::string_view word);
const MissingWord* missingWord(std::string_view word);

}  // namespace calquo
