// The names that may be meant by what stands at the caret, and what takes its place.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {

/// The names that fit a word of a line.
struct Completion {
    std::size_t begin = 0;           ///< Where the word begins in the line.
    std::size_t end = 0;             ///< And where it ends, which may be after the caret.
    std::string typed;               ///< Its characters before the caret, which alone count.
    std::vector<std::size_t> names;  ///< The indices of the names, the likeliest first.
};

/// The names that fit the word at the caret, without regard to case: those that are it, that begin with it, that
/// is called by it on other calculators, that contain it, those whose description or dimension has a word that begins
/// with it, and those whose description contains it; each kind in the order of the alphabet. Every name where no word
/// stands; none inside a number and after a base prefix, where letters are digits.
std::optional<Completion> completionAt(std::string_view line, std::size_t caret);

/// What takes the place of the completed word: the name, and for a function its "(" unless the line has it already. A
/// blank keeps the name apart from a word or number right after it, and one that begins with "e" from a number before
/// it, of which the "e" would begin the exponent.
std::string textFor(std::size_t name, std::string_view line, const Completion& completion);

}  // namespace calquo
