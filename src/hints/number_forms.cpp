// Numbers as people write them elsewhere; see number_forms.h.
#include "hints/number_forms.h"

#include <algorithm>
#include <array>
#include <vector>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "engine/number_literal.h"
#include "values/errors.h"

namespace calquo {
namespace {

char decimalMark() { return markCharacter(TokenClass::DecimalMark); }
char groupMark() { return markCharacter(TokenClass::GroupMark); }

struct BaseLetter {
    char letter;
    std::uint32_t base;
};
constexpr std::array<BaseLetter, 3> baseLetters = {{{'x', 16}, {'b', 2}, {'o', 8}}};

bool areDigitsOf(std::string_view text, std::uint32_t base) {
    return !text.empty() && std::ranges::all_of(text, [&](char c) { return digitValue(c) < base; });
}

/// Whether digits and marks are a number that the decimal mark and the group mark have changed places in: "1.234,56".
bool isExchanged(std::string_view text) {
    const std::size_t decimal = text.find(decimalMark());
    const std::size_t group = text.rfind(groupMark());
    return decimal != std::string_view::npos && group != std::string_view::npos && decimal < group &&
           text.find(groupMark()) == group;
}

/// "1.234.567": several decimal marks, three digits after each.
bool isGroupedByDecimalMarks(std::string_view text) {
    if (std::ranges::count(text, decimalMark()) < 2 || text.find(groupMark()) != std::string_view::npos) {
        return false;
    }
    for (std::size_t mark = text.find(decimalMark()); mark != std::string_view::npos;) {
        const std::size_t next = text.find(decimalMark(), mark + 1);
        if (std::min(next, text.size()) - mark - 1 != thousandsGroup) {
            return false;
        }
        mark = next;
    }
    return true;
}

bool hasBasePrefix(std::string_view text) { return text.find('\'') != std::string_view::npos; }

/// "1,2,3": single digits between two commas or more.
bool isListOfDigits(std::string_view text) {
    if (text.size() < 5 || text.size() % 2 == 0) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i % 2 == 0 ? !isDecimalDigit(text[i]) : text[i] != ',') {
            return false;
        }
    }
    return true;
}

bool isGroup(const DraftWord& word) {
    return word.isNumber() && word.text.size() == thousandsGroup && isWholeNumber(word.text);
}

}  // namespace

bool replaceBasePrefixes(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const DraftWord& next = draft.at(i + 1);
        std::string number;
        if (draft.words[i].is("0") && next.isName() && !next.afterBlank) {
            for (const BaseLetter& row : baseLetters) {
                if (lowerCase(next.text[0]) == row.letter &&
                    areDigitsOf(std::string_view(next.text).substr(1), row.base)) {
                    number = std::to_string(row.base) + "'" + next.text.substr(1);
                }
            }
        } else if (draft.words[i].is("#") && !next.afterBlank && (next.isName() || next.isNumber()) &&
                   areDigitsOf(next.text, 16)) {
            number = "16'" + next.text;
        }
        if (!number.empty()) {
            findings[0] = changed ? findings[0] : number;
            draft.replace(i, 2, number);
            changed = true;
        }
    }
    return changed;
}

bool separateItems(Draft& draft, Findings& findings) {
    bool changed = false;
    const auto isInCall = [&](std::size_t opening) {
        return opening != Draft::none && opening > 0 && draft.words[opening - 1].kind == WordKind::Name;
    };
    // In calls with semicolons commas do not separate.
    std::vector<bool> separated(draft.words.size(), false);
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        if (draft.words[i].is(";") && isInCall(draft.openingAround(i))) {
            separated[draft.openingAround(i)] = true;
        }
    }
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const std::size_t opening = draft.openingAround(i);
        if (!isInCall(opening) || separated[opening]) {
            continue;
        }
        if (draft.words[i].is(",")) {
            draft.words[i].text = ";";
            draft.words[std::min(i + 1, draft.words.size() - 1)].afterBlank = true;
            changed = true;
        } else if (draft.words[i].isNumber() && !hasBasePrefix(draft.words[i].text) && decimalMark() != ',') {
            std::string& text = draft.words[i].text;
            for (std::size_t comma = text.find(','); comma != std::string::npos; comma = text.find(',', comma + 1)) {
                text.replace(comma, 1, "; ");
                changed = true;
            }
        }
    }
    // "(3,4)": a pair.
    for (std::size_t i = 1; i + 1 < draft.words.size(); ++i) {
        DraftWord& word = draft.words[i];
        const std::size_t comma = word.text.find(',');
        if (word.isNumber() && comma != std::string::npos && word.text.find(',', comma + 1) == std::string::npos &&
            draft.at(i - 1).is("(") && draft.at(i + 1).is(")") && decimalMark() != ',' &&
            draft.at(i - 2).kind != WordKind::Name) {
            word.text.replace(comma, 1, "; ");
            changed = true;
        }
    }
    // "1,2,3": items alone.
    for (DraftWord& word : draft.words) {
        if (word.isNumber() && decimalMark() != ',' && isListOfDigits(word.text)) {
            for (std::size_t comma = word.text.find(','); comma != std::string::npos; comma = word.text.find(',')) {
                word.text.replace(comma, 1, "; ");
            }
            changed = true;
        }
    }
    findings[0] = groupMark();
    return changed;
}

bool separateNeighbours(Draft& draft, Findings& /*findings*/) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        if (draft.words[i].isNumber() && draft.words[i].afterBlank && draft.words[i - 1].isNumber() &&
            !isGroup(draft.words[i]) && !draft.at(i + 1).is("/") && draft.isInList(i)) {
            draft.insert(i, ";");
            changed = true;
        }
    }
    return changed;
}

bool joinMarkedGroups(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const std::string text = draft.words[i].text;
        const std::size_t mark = draft.words[i].isNumber() ? text.find('\'') : std::string::npos;
        const std::size_t base = mark == std::string::npos ? 0 : std::stoul(text.substr(0, mark));
        const std::string digits = mark == std::string::npos ? "" : text.substr(mark + 1, text.find('.') - mark - 1);
        const bool isGrouped = digits.size() == thousandsGroup && isWholeNumber(digits) && (base < 2 || base > 36);
        if (isGrouped) {
            draft.words[i].text.erase(mark, 1);
            findings[0] = "'";
            changed = true;
        }
        const auto goesOn = [&] { return draft.at(i + 1).is("_") || (isGrouped && draft.at(i + 1).is("'")); };
        while (draft.words[i].isNumber() && goesOn() && draft.at(i + 2).isNumber()) {
            findings[0] = draft.at(i + 1).text;
            draft.words[i].text += draft.at(i + 2).text;
            draft.remove(i + 1, 2);
            changed = true;
        }
    }
    return changed;
}

bool tellOfDates(Draft& draft, Findings& /*findings*/) {
    return std::ranges::any_of(draft.words, [](const DraftWord& word) {
        const std::size_t first = word.text.find('.');
        const std::size_t second = first == std::string::npos ? first : word.text.find('.', first + 1);
        const bool isDayAndMonth = first <= 2 && second != std::string::npos && second - first <= 3;
        const std::size_t year = isDayAndMonth ? word.text.size() - second - 1 : 0;
        return word.isNumber() && (year == 2 || year == 4) && word.text.find('.', second + 1) == std::string::npos;
    });
}

bool exchangeMarks(Draft& draft, Findings& findings) {
    bool changed = false;
    for (DraftWord& word : draft.words) {
        if (!word.isNumber() || hasBasePrefix(word.text) || word.text.find(';') != std::string::npos) {
            continue;
        }
        if (isGroupedByDecimalMarks(word.text)) {
            std::erase(word.text, decimalMark());
            changed = true;
            continue;
        }
        const auto marks = std::ranges::count(word.text, groupMark());
        const bool hasDecimal = word.text.find(decimalMark()) != std::string::npos;
        Real value = 0;
        try {
            // What the language reads as it stands is well formed.
            if (marks == 0 || readNumber(word.text, 0, value) == word.text.size()) {
                continue;
            }
        } catch (const Except&) {
            value = 0;
        }
        // "1,234,56" may have a digit too few as well as another mark.
        const bool isUncertain =
            marks > 1 && !hasDecimal && word.text.size() - word.text.rfind(groupMark()) - 1 != thousandsGroup;
        if (isUncertain) {
            continue;
        }
        if (isExchanged(word.text)) {
            std::erase(word.text, decimalMark());
            std::ranges::replace(word.text, groupMark(), decimalMark());
        } else if (marks == 1 && !hasDecimal) {
            std::ranges::replace(word.text, groupMark(), decimalMark());
        } else {
            std::erase(word.text, groupMark());
        }
        changed = true;
    }
    findings[0] = decimalMark();
    findings[1] = groupMark();
    return changed;
}

bool joinGroups(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i + 1 < draft.words.size(); ++i) {
        const DraftWord& first = draft.words[i];
        if (!first.isNumber() || !isWholeNumber(first.text) || first.text.size() > thousandsGroup || first.is("0")) {
            continue;
        }
        std::string joined = first.text;
        std::size_t count = 1;
        while (isGroup(draft.at(i + count)) && draft.at(i + count).afterBlank) {
            joined += draft.at(i + count++).text;
        }
        // The last group may go on after the decimal mark.
        const DraftWord& last = draft.at(i + count);
        const std::size_t mark = last.text.find(decimalMark());
        if (last.isNumber() && last.afterBlank && mark == thousandsGroup) {
            joined += last.text;
            ++count;
        }
        if (count > 1) {
            draft.replace(i, count, joined);
            findings[0] = joined;
            changed = true;
        }
    }
    return changed;
}

bool sumNumbers(Draft& draft, Findings& /*findings*/) {
    const bool allNumbers = std::ranges::all_of(draft.words, [](const DraftWord& word) { return word.isNumber(); });
    if (!allNumbers || draft.words.size() < 3) {
        return false;
    }
    std::string items;
    for (const DraftWord& word : draft.words) {
        items += (items.empty() ? "" : "; ") + word.text;
    }
    draft.replace(0, draft.words.size(), "sum(" + items + ")");
    return true;
}

bool replaceTimesLetter(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        DraftWord& word = draft.words[i];
        if (!word.isName() || lowerCase(word.text[0]) != 'x' || !draft.endsOperand(i - 1)) {
            continue;
        }
        const std::string rest = word.text.substr(1);
        if (rest.empty() ? !draft.beginsOperand(i + 1) : !isWholeNumber(rest)) {
            continue;
        }
        findings[0] = word.text.substr(0, 1);
        const bool afterBlank = word.afterBlank;
        word = {WordKind::Mark, "*", afterBlank};
        if (!rest.empty()) {
            draft.words.insert(draft.words.begin() + static_cast<std::ptrdiff_t>(i) + 1, {WordKind::Number, rest});
        }
        changed = true;
    }
    return changed;
}

}  // namespace calquo
