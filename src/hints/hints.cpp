// The text of the first rule that finds something, or what is said about a refused line.
#include "hints/hints.h"

#include <cstddef>

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
    const std::string_view expression = expressionOf(line);
    const WordsOfLine words(expression);
    const Situation situation{line, expression, words, answer, settings};
    std::string hint = answer != nullptr && answer->failed ? hintForRefused(situation) : hintForAccepted(situation);
    return hint.empty() ? hint : visibleText(hint);
}

}  // namespace calquo
