// Quantities of several parts; see quantities.h.
#include "hints/quantities.h"

#include <algorithm>

#include "engine/keywords.h"
#include "hints/unknown_names.h"

namespace calquo {
namespace {

/// The unit that a word is a name of, of this language or of another.
std::string unitNameOf(const DraftWord& word) {
    if (!word.isName()) {
        return {};
    }
    // After hours or minutes these are units of time, whatever they are elsewhere.
    if (sameLetters(word.text, "min")) {
        return "mn";
    }
    if (sameLetters(word.text, "sec")) {
        return "s";
    }
    if (const std::size_t index = lookup(word.text)) {
        return classOf(index) == ArgumentClass::None ? std::string(nameOf(index)) : std::string();
    }
    const auto found = replacementFor(word.text);
    return found ? found->text : std::string();
}

bool isHourOrMinute(std::string_view unit) {
    return unit == "hr" || unit == "hour" || unit == "mn" || unit == "minute";
}

bool isWhole(const DraftWord& word) { return word.isNumber() && isWholeNumber(word.text); }

/// "8:30 pm", "12:30 to 17:45": times of the day, in whose place no sum of units can stand.
bool hasTimeOfDay(const Draft& draft) {
    bool afterColon = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const std::string& text = draft.words[i].text;
        const bool isHalf = sameLetters(text, "am") || sameLetters(text, "pm");
        const bool isSpan = (sameLetters(text, "to") || text == "->") && draft.at(i + 2).is(":");
        if (afterColon && (isHalf || isSpan)) {
            return true;
        }
        afterColon = afterColon || text == ":";
    }
    return false;
}

}  // namespace

bool replaceFeetAndInches(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const std::string text = draft.words[i].text;
        const std::size_t mark = text.find('\'');
        std::string sum;
        std::size_t count = 0;
        if (draft.words[i].isNumber() && mark != std::string::npos && draft.at(i + 1).is("\"")) {
            sum = "(" + text.substr(0, mark) + " foot + " + text.substr(mark + 1) + " inch)";
            count = 2;
        } else if (draft.words[i].isNumber() && draft.at(i + 1).is("'") && draft.at(i + 2).isNumber() &&
                   draft.at(i + 3).is("\"")) {
            sum = "(" + text + " foot + " + draft.at(i + 2).text + " inch)";
            count = 4;
        } else if (draft.words[i].isNumber() && (draft.at(i + 1).is("\"") || draft.at(i + 1).is("'"))) {
            draft.replace(i + 1, 1, draft.at(i + 1).is("\"") ? "inch" : "foot");
            draft.words[i + 1].afterBlank = true;
            changed = true;
        }
        if (count != 0) {
            findings[0] = changed ? findings[0] : sum;
            draft.replace(i, count, sum);
            changed = true;
        }
    }
    return changed;
}

bool replaceArcMinutes(Draft& draft, Findings& findings) {
    for (std::size_t i = 0; i + 2 < draft.words.size(); ++i) {
        const std::string minutes = draft.at(i + 2).text;
        const std::size_t mark = minutes.find('\'');
        const bool hasSeconds = mark != std::string::npos && draft.at(i + 3).is("\"");
        if (!draft.words[i].isNumber() || !draft.words[i + 1].is("deg") || !draft.at(i + 2).isNumber() ||
            !(hasSeconds || draft.at(i + 3).is("'"))) {
            continue;
        }
        std::string sum = "(" + draft.words[i].text + " deg + " + minutes.substr(0, mark) + " arcMinute";
        std::size_t count = 4;
        if (hasSeconds) {
            sum += " + " + minutes.substr(mark + 1) + " arcSecond";
        } else if (draft.at(i + 4).isNumber() && draft.at(i + 5).is("\"")) {
            sum += " + " + draft.at(i + 4).text + " arcSecond";
            count = 6;
        }
        draft.replace(i, count, sum + ")");
        findings[0] = draft.words[i].text;
        return true;
    }
    return false;
}

bool replaceClockTimes(Draft& draft, Findings& findings) {
    bool changed = false;
    if (hasTimeOfDay(draft)) {
        return true;
    }
    for (std::size_t i = 0; i + 2 < draft.words.size(); ++i) {
        const auto isPart = [&](std::size_t mark) {
            return draft.at(mark).is(":") && isWhole(draft.at(mark + 1)) && draft.at(mark + 1).text.size() == 2;
        };
        // "sum(1:10)" is a range elsewhere.
        const bool isRange = draft.isInList(i) && draft.words[i].text.size() == 1 && draft.at(i + 3).is(")");
        if (!isWhole(draft.words[i]) || !isPart(i + 1) || isRange) {
            continue;
        }
        std::string sum = "(" + draft.words[i].text + " hr + " + draft.words[i + 2].text + " mn";
        const bool hasSeconds = isPart(i + 3);
        sum += hasSeconds ? " + " + draft.at(i + 4).text + " s)" : ")";
        draft.replace(i, hasSeconds ? 5 : 3, sum);
        findings[0] = changed ? findings[0] : sum;
        changed = true;
    }
    return changed;
}

bool subtractClockTimes(Draft& draft, Findings& findings) {
    const auto isTime = [&](std::size_t i) {
        return isWhole(draft.at(i)) && draft.at(i + 1).is(":") && isWhole(draft.at(i + 2)) &&
               draft.at(i).text.size() <= 2 && draft.at(i + 2).text.size() == 2;
    };
    const auto sum = [&](std::size_t i, int hours) {
        return "(" + std::to_string(hours) + " hr + " + draft.at(i + 2).text + " mn)";
    };
    for (std::size_t i = 0; i + 6 < draft.words.size(); ++i) {
        const std::string word = draft.at(i + 3).text;
        const bool isUntil = sameLetters(word, "to") || sameLetters(word, "till") || sameLetters(word, "until");
        if (!isTime(i) || !isUntil || !isTime(i + 4)) {
            continue;
        }
        const int begin = std::stoi(draft.at(i).text), end = std::stoi(draft.at(i + 4).text);
        const bool isNextDay =
            end * 60 + std::stoi(draft.at(i + 6).text) < begin * 60 + std::stoi(draft.at(i + 2).text);
        findings[0] = "(" + sum(i + 4, isNextDay ? end + 24 : end) + " - " + sum(i, begin) + ")";
        draft.replace(i, 7, findings[0]);
        return true;
    }
    return false;
}

bool divideRatios(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 1; i + 1 < draft.words.size(); ++i) {
        // "sum(1:10)" is a range elsewhere, and "8:30pm" a time of the day.
        if (draft.words[i].is(":") && draft.at(i - 1).isNumber() && draft.at(i + 1).isNumber() &&
            !draft.at(i + 2).isName() && !draft.isInList(i)) {
            draft.words[i].text = "/";
            changed = true;
        }
    }
    findings[0] = draft.text();
    return changed;
}

bool splitGluedUnits(Draft& draft, Findings& /*findings*/) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        const DraftWord word = draft.words[i];
        const std::size_t digits = word.text.find_first_of("0123456789");
        if (!word.isName() || lookup(word.text) != 0 || digits == std::string::npos || !draft.at(i - 1).isNumber()) {
            continue;
        }
        const bool isOneLetter = digits == 1 && isWholeNumber(std::string_view(word.text).substr(1));
        if (isOneLetter && word.text[0] == 'C' && !word.afterBlank) {
            // "5C2": the word that stands between its arguments.
            draft.words[i].text = "nCr";
            draft.words.insert(draft.words.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                               {WordKind::Number, word.text.substr(1), true});
            changed = true;
            continue;
        }
        if (isOneLetter && word.text[0] == 'e') {
            // "1.5 e3": an exponent after a blank.
            draft.replace(i - 1, 2, draft.at(i - 1).text + word.text);
            --i;
            changed = true;
            continue;
        }
        const DraftWord unit{WordKind::Name, word.text.substr(0, digits), word.afterBlank};
        if (unitNameOf(unit).empty() || replacementFor(word.text)) {
            continue;
        }
        const std::size_t rest = std::min(word.text.find_first_not_of("0123456789", digits), word.text.size());
        draft.words[i] = unit;
        std::vector<DraftWord> added{{WordKind::Number, word.text.substr(digits, rest - digits), true}};
        if (rest < word.text.size()) {
            added.push_back({WordKind::Name, word.text.substr(rest)});
        }
        draft.words.insert(draft.words.begin() + static_cast<std::ptrdiff_t>(i) + 1, added.begin(), added.end());
        ++i;
        changed = true;
    }
    return changed;
}

bool addQuantities(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i + 3 < draft.words.size() + 1; ++i) {
        std::string sum;
        std::size_t end = i;
        std::string unit;
        std::size_t parts = 0;
        while (draft.at(end).isNumber() && draft.at(end).text.find(';') == std::string::npos) {
            std::string next = unitNameOf(draft.at(end + 1));
            // "2h30m" and "2h30": the minutes that follow hours.
            if (isHourOrMinute(unit) && (draft.at(end + 1).is("m") || draft.at(end + 1).is("M"))) {
                next = "mn";
            }
            if (next.empty() && unit == "hr" && isWhole(draft.at(end)) && !draft.at(end + 1).isName()) {
                sum += " + " + draft.at(end++).text + " mn";  // "2h30"
                ++parts;
                break;
            }
            if (next.empty()) {
                break;
            }
            unit = next;
            sum += (sum.empty() ? "" : " + ") + draft.at(end).text + " " + unit;
            end += 2;
            ++parts;
        }
        if (parts < 2) {
            continue;
        }
        sum = "(" + sum + ")";
        findings[0] = changed ? findings[0] : sum;
        draft.replace(i, end - i, sum);
        changed = true;
    }
    return changed;
}

bool replaceMetresByMinutes(Draft& draft, Findings& /*findings*/) {
    const auto isHour = [](const DraftWord& word) {
        const std::string unit = unitNameOf(word);
        return unit == "hr" || unit == "hour" || (word.settled && word.text.find(" hr + ") != std::string::npos);
    };
    const auto isArrow = [](const DraftWord& word) {
        return word.is("->") || sameLetters(word.text, "to") || sameLetters(word.text, "in");
    };
    bool changed = false;
    bool afterHour = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const bool toHour = isArrow(draft.at(i + 1)) && isHour(draft.at(i + 2));
        const bool isAfterNumber = i > 0 && draft.at(i - 1).isNumber();
        if (isAfterNumber && draft.words[i].is("m") && (afterHour || toHour)) {
            draft.words[i].text = "mn";
            draft.words[i].afterBlank = true;
            changed = true;
        }
        afterHour = afterHour || (isHour(draft.words[i]) && (isAfterNumber || draft.words[i].settled));
    }
    return changed;
}

bool addFractions(Draft& draft, Findings& findings) {
    bool changed = false;
    for (std::size_t i = 0; i + 3 < draft.words.size(); ++i) {
        if (isWhole(draft.words[i]) && isWhole(draft.words[i + 1]) && draft.words[i + 1].afterBlank &&
            draft.words[i + 2].is("/") && isWhole(draft.words[i + 3])) {
            const std::string sum =
                "(" + draft.words[i].text + "+" + draft.words[i + 1].text + "/" + draft.words[i + 3].text + ")";
            draft.replace(i, 4, sum);
            findings[0] = changed ? findings[0] : sum;
            changed = true;
        }
    }
    return changed;
}

}  // namespace calquo
