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
    for (std::size_t i = 0; i + 2 < draft.words.size(); ++i) {
        const auto isPart = [&](std::size_t mark) {
            return draft.at(mark).is(":") && isWhole(draft.at(mark + 1)) && draft.at(mark + 1).text.size() == 2;
        };
        if (!isWhole(draft.words[i]) || !isPart(i + 1)) {
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

bool splitGluedUnits(Draft& draft, Findings& /*findings*/) {
    bool changed = false;
    for (std::size_t i = 1; i < draft.words.size(); ++i) {
        const DraftWord word = draft.words[i];
        const std::size_t digits = word.text.find_first_of("0123456789");
        if (!word.isName() || lookup(word.text) != 0 || digits == std::string::npos || !draft.at(i - 1).isNumber()) {
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
