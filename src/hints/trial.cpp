// Evaluates and leaves no trace in the engine's state; see trial.h.
#include "hints/trial.h"

#include <string>

#include "engine/keywords.h"
#include "hints/words_of_line.h"

namespace calquo {
namespace {

/// The line with every random number drawn by calm functions instead, so that its form can be tried.
std::string withoutRandomNumbers(std::string_view expression) {
    std::pmr::vector<Word> words;
    splitIntoWords(expression, words);
    std::string line(expression);
    for (auto word = words.rbegin(); word != words.rend(); ++word) {
        constexpr std::string_view beginning = "rnd";
        if (!word->isName() || !sameLetters(word->text.substr(0, beginning.size()), beginning)) {
            continue;
        }
        // After a number "e" would begin an exponent.
        const ArgumentClass taken = classOf(lookup(word->text));
        const std::string_view calm = taken == ArgumentClass::Two ? "max" : taken == ArgumentClass::One ? "abs" : "pi";
        line.replace(static_cast<std::size_t>(word->text.data() - expression.data()), word->text.size(), calm);
    }
    return line;
}

}  // namespace

bool evaluates(std::string_view expression, NumericFormat format, Answer& answer) {
    const std::int32_t place = errorPosition();
    evaluateInto(answer, withoutRandomNumbers(expression), format);
    setErrorPosition(place);
    return !answer.failed;
}

bool hasResult(std::string_view expression) {
    Answer answer;
    return evaluates(expression, defaultFormats[0], answer);
}

}  // namespace calquo
