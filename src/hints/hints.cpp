// The text of the first rule that finds something, or what is said about a refused line.
#include "hints/hints.h"

#include <array>
#include <cstddef>
#include <memory_resource>

#include "hints/accepted_lines.h"
#include "hints/refused_lines.h"
#include "workarea/visible_text.h"

namespace calquo {
namespace {

// In bytes. The rules look back and ahead from each word, and try the line again in other words, so their time grows
// with the square of the length. Nobody waits for advice about a line that no one has typed by hand.
constexpr std::size_t longestLineWithHint = 2000;

}  // namespace

std::string hintFor(std::string_view line, const Answer* answer, const HintSettings& settings) {
    if (line.size() > longestLineWithHint) {
        return {};
    }
    // The words of short lines stay on the stack.
    constexpr std::size_t wordsOnStack = 64;
    alignas(Word) std::array<std::byte, wordsOnStack * sizeof(Word)> storage;
    std::pmr::monotonic_buffer_resource memory(storage.data(), storage.size());
    Words words(&memory);
    words.reserve(wordsOnStack / 2);
    const std::string_view expression = expressionOf(line);
    splitIntoWords(expression, words);
    const Situation situation{line, expression, words, answer, settings};
    return visibleText(answer != nullptr && answer->failed ? hintForRefused(situation) : hintForAccepted(situation));
}

}  // namespace calquo
