// The table of the rules; the findings of each are in a file for each idea.
#include "hints/rules.h"

#include "hints/line_forms.h"

namespace calquo {

std::span<const Rule> hintRules() {
    static constexpr auto rules = std::to_array<Rule>({
        {"the line begins with \"=\"", "What is evaluated stands before the \"=\". Write \"%1\".", "=2+3",
         "the expression of a line is its text up to the first \"=\"", beginsWithEquals},
        {"words follow the \"=\" after an unknown name", "The line stays as it is: %1.", "A = 12 m2, U = 0.24",
         "only what reads as an answer is replaced by one", isNoteLine},
    });
    return rules;
}

}  // namespace calquo
