// The rules for misleading forms; see line_forms.h.
#include "hints/line_forms.h"

#include <algorithm>

#include "engine/characters.h"
#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

bool isNumberUpTo(const Word& word, std::size_t most) {
    if (!word.isNumber() || !isWholeNumber(word.text) || word.text.size() > 2) {
        return false;
    }
    const auto value = static_cast<std::size_t>(std::stoi(std::string(word.text)));
    return value >= 1 && value <= most;
}

bool isYear(const Word& word) {
    constexpr std::size_t digitsOfYear = 4;
    return word.isNumber() && isWholeNumber(word.text) && word.text.size() == digitsOfYear;
}

}  // namespace

bool beginsWithEquals(const Situation& situation, Findings& findings) {
    const std::size_t begin = situation.line.find_first_not_of(" \t");
    if (situation.answer != nullptr || begin == std::string_view::npos || situation.line[begin] != '=') {
        return false;
    }
    const std::size_t inside = situation.line.find_first_not_of("= \t", begin);
    if (inside == std::string_view::npos) {
        return false;
    }
    findings[0] = expressionOf(situation.line.substr(inside));
    return hasResult(findings[0]);
}

bool findsVariable(const Situation& situation, Findings& findings) {
    const std::string_view line = situation.line;
    findings[0] = line.substr(0, 2);
    return situation.answer == nullptr && line.size() > 2 && isLetter(line[0]) && line[1] == '=';
}

bool findsUnitAfterEquals(const Situation& situation, Findings& findings) {
    const std::size_t equals = situation.line.find('=');
    if (equals == std::string_view::npos || situation.words().empty()) {
        return false;
    }
    std::pmr::vector<Word> after;
    splitIntoWords(situation.line.substr(equals + 1), after);
    std::erase_if(after, [](const Word& word) { return word.is("?"); });
    if (after.size() != 1 || !after[0].isName() || unitOf(after[0].text) == nullptr) {
        return false;
    }
    findings[0] = std::string(situation.expression) + " -> " + std::string(after[0].text);
    return hasResult(findings[0]);
}

bool findsExchangedMarks(const Situation& situation, Findings& findings) {
    const char decimal = markCharacter(TokenClass::DecimalMark);
    const char group = markCharacter(TokenClass::GroupMark);
    if (situation.expression.find(group) == std::string_view::npos) {
        return false;
    }
    const bool mayBeMeant = (situation.settings.format & field::groupFraction) != 0;
    const auto isExchanged = [&](std::string_view text) {
        const std::size_t mark = text.find(decimal);
        const std::size_t groups = text.find(group);
        return mark != std::string_view::npos && groups != std::string_view::npos && groups > mark &&
               text.find(group, groups + 1) == std::string_view::npos;
    };
    if (mayBeMeant || std::ranges::none_of(situation.words(), [&](const Word& word) {
            return word.isNumber() && isExchanged(word.text);
        })) {
        return false;
    }
    Draft draft(situation.words());
    for (DraftWord& word : draft.words) {
        if (!word.isNumber() || !isExchanged(word.text)) {
            continue;
        }
        findings[0] = word.text;
        findings[1] = word.text;
        std::erase(findings[1], group);
        std::erase(word.text, decimal);
        word.text[word.text.find(group)] = decimal;
    }
    findings[2] = draft.text();
    return hasResult(findings[2]);
}

bool findsDate(const Situation& situation, Findings& findings) {
    const auto hasTwo = [&](char mark) {
        const std::size_t first = situation.expression.find(mark);
        return first != std::string_view::npos && situation.expression.find(mark, first + 1) != std::string_view::npos;
    };
    if (!hasTwo('-') && !hasTwo('/')) {
        return false;
    }
    const Words& words = situation.words();
    constexpr std::size_t months = 12, days = 31;
    for (std::size_t i = 0; i + 4 < words.size(); ++i) {
        const bool isOne = words[i + 1].text == words[i + 3].text && (words[i + 1].is("-") || words[i + 1].is("/")) &&
                           std::none_of(words.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                        words.begin() + static_cast<std::ptrdiff_t>(i) + 5,
                                        [](const Word& word) { return word.afterBlank; });
        const bool yearFirst =
            isYear(words[i]) && isNumberUpTo(words[i + 2], months) && isNumberUpTo(words[i + 4], days);
        const bool yearLast = isYear(words[i + 4]) && isNumberUpTo(words[i], days) && isNumberUpTo(words[i + 2], days);
        if (isOne && (yearFirst || yearLast)) {
            findings[0] = Draft(words).text(i, i + 5);
            return true;
        }
    }
    return false;
}

bool findsComparison(const Situation& situation, Findings& /*findings*/) {
    const std::size_t equals = situation.line.find('=');
    if (equals == std::string_view::npos) {
        return false;
    }
    const std::string_view after = situation.line.substr(equals + 1);
    // "5!=120": the result of a factorial, where no blank was typed.
    const bool isResult = situation.answer != nullptr && after == situation.answer->text;
    const bool isUnequal = equals > 0 && situation.line[equals - 1] == '!' && !after.empty() && after.front() != ' ';
    return (isUnequal && !isResult) || after.starts_with('=');
}

bool findsBinaryLooks(const Situation& situation, Findings& findings) {
    if (situation.answer == nullptr || situation.answer->outputBase != 2) {
        return false;
    }
    const auto looksBinary = [](const Word& word) {
        constexpr std::size_t digitsOfBinary = 4;
        return word.isNumber() && word.text.size() >= digitsOfBinary && std::ranges::count(word.text, '1') > 1 &&
               word.text.find_first_not_of("01") == std::string_view::npos;
    };
    const auto word = std::ranges::find_if(situation.words(), looksBinary);
    findings[0] = word == situation.words().end() ? std::string() : std::string(word->text);
    return !findings[0].empty();
}

bool findsApostropheGroups(const Situation& situation, Findings& findings) {
    if (situation.expression.find('\'') == std::string_view::npos) {
        return false;
    }
    Draft draft(situation.words());
    bool found = false;
    for (DraftWord& word : draft.words) {
        const std::size_t mark = word.isNumber() ? word.text.find('\'') : std::string::npos;
        if (mark == std::string::npos) {
            continue;
        }
        const std::string base = word.text.substr(0, mark);
        const std::string digits = word.text.substr(mark + 1, word.text.find('.') - mark - 1);
        const bool isUsualBase = base == "2" || base == "8" || base == "16";
        if (!isUsualBase && digits.size() == thousandsGroup && isWholeNumber(digits)) {
            findings = {word.text, base, ""};
            word.text.erase(mark, 1);
            found = true;
        }
    }
    findings[2] = draft.text();
    return found && hasResult(findings[2]);
}

}  // namespace calquo
