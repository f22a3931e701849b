// Arrows, quotients of quantities and temperatures; see conversions.h.
#include "hints/conversions.h"

#include <algorithm>
#include <cmath>

#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

bool isScale(const Word& word) {
    const Unit* const unit = word.isName() ? unitOf(word.text) : nullptr;
    return unit != nullptr && unit->offset != 0;
}

/// Also "r" and "k", which people hardly mean a temperature by.
bool isLoneScale(const Word& word) { return isScale(word) || word.is("r") || word.is("R") || word.is("k"); }

bool isLoneTemperature(const Words& words, std::size_t i) {
    const bool isAtArrow = (i > 0 && words[i - 1].is("->")) || (i + 1 < words.size() && words[i + 1].is("->"));
    return isLoneScale(words[i]) && !isAtArrow && !isNamed(words[0], "convert");
}

/// "Celsius scale".
std::string scaleOf(const Word& scale) {
    const std::string_view description = unitOf(scale.text)->description;
    return std::string(description.substr(0, description.find(',')));
}

bool hasArrow(const Words& words) {
    return std::ranges::any_of(words, [](const Word& word) { return word.is("->"); });
}

bool isTimesOrDivided(const Word& word) { return word.is("*") || word.is("/"); }

/// Past the units that go on from the target at `index`: "/hour", "*s", " watt".
std::size_t unitsEnd(const Words& words, std::size_t index) {
    for (;;) {
        const std::size_t next = index < words.size() && isTimesOrDivided(words[index]) ? index + 1 : index;
        if (next >= words.size() || !isNumberName(words[next])) {
            return index;
        }
        index = next + 1;
    }
}

/// The line with parentheses around some of its words.
std::string enclosed(const Words& words, std::size_t begin, std::size_t end) {
    Draft draft(words);
    const std::string inside = draft.text(begin, end);
    draft.replace(begin, end - begin, "(" + inside + ")");
    return draft.text();
}

/// Whether two values differ by more than rounding.
bool differs(const Value& a, const Value& b) {
    constexpr Real traceOfRounding = 1e-15L;
    const auto apart = [](Real x, Real y) {
        return !(std::fabs(x - y) <= traceOfRounding * std::max(std::fabs(x), std::fabs(y)));
    };
    return apart(a.re, b.re) || apart(a.im, b.im);
}

}  // namespace

bool findsLongTarget(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 2 < words.size(); ++i) {
        if (!words[i].is("->") || !isNumberName(words[i + 1])) {
            continue;
        }
        const std::size_t end = unitsEnd(words, i + 2);
        if (end > i + 2 && !(end < words.size() && words[end].is("->"))) {
            findings = {Draft(words).text(i + 1, end), enclosed(words, i + 1, end), ""};
            return hasResult(findings[1]);
        }
    }
    return false;
}

bool findsConvertedPart(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const auto isSum = [](const Word& word) { return word.is("+") || word.is("-"); };
    if (!hasArrow(words) || std::ranges::none_of(words, isSum) || std::ranges::any_of(words, isScale)) {
        return false;
    }
    Draft draft(words);
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (!words[i].is("->")) {
            continue;
        }
        const std::size_t part = draft.sideBegin(i, "+-");
        const std::size_t begin = draft.sideBegin(i, "");
        const auto isUnitName = [](const Word& word) { return word.isName() && unitOf(word.text) != nullptr; };
        const auto first = words.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto partBegin = words.begin() + static_cast<std::ptrdiff_t>(part);
        if (part > begin + 1 && std::any_of(first, partBegin, isUnitName)) {
            findings = {draft.text(part, i), enclosed(words, begin, i), ""};
            return hasResult(findings[1]);
        }
    }
    return false;
}

bool findsDivisorSideBySide(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 1; i + 2 < words.size(); ++i) {
        if (!words[i].is("/") || !words[i + 1].isNumber()) {
            continue;
        }
        const Word& next = words[i + 2];
        const bool isGroup = next.is("(");
        const bool isName = isNumberName(next);
        // "3/4 inch" is a fraction of an inch; "100 km / 2 hour" is none of an hour, and neither is "1/2 pi" sure.
        const bool isUnit =
            (isName && unitOf(next.text) != nullptr) ||
            (isGroup && i + 3 < words.size() && words[i + 3].isName() && unitOf(words[i + 3].text) != nullptr);
        const bool isFractionOfUnit = isUnit && !isNumberName(words[i - 1]);
        if ((!isGroup && !isName) || isFractionOfUnit) {
            continue;
        }
        std::size_t end = i + 3;
        if (isGroup) {
            int depth = 1;
            for (; end < words.size() && depth > 0; ++end) {
                depth += words[end].is("(") ? 1 : words[end].is(")") ? -1 : 0;
            }
        } else {
            while (end < words.size() && isNumberName(words[end])) {
                ++end;
            }
        }
        findings[0] = enclosed(words, i + 1, end);
        Answer meant;
        return evaluates(findings[0], situation.settings.format, meant) &&
               differs(meant.value, situation.answer->value);
    }
    return false;
}

bool findsDegreeOfScale(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const auto isDegree = [](const Word& word) { return isNamed(word, "deg") || isNamed(word, "degree"); };
    if (std::ranges::none_of(words, isDegree)) {
        return false;
    }
    Draft draft(words);
    bool found = false;
    for (std::size_t i = words.size(); i-- > 1;) {
        const Unit* const scale = words[i].isName() ? unitOf(words[i].text) : nullptr;
        const bool isTemperature = scale != nullptr && scale->dimension == dimension::temperature;
        if (isTemperature && (isNamed(words[i - 1], "deg") || isNamed(words[i - 1], "degree"))) {
            draft.remove(i - 1);
            found = true;
        }
    }
    findings[0] = draft.text();
    return found && hasResult(findings[0]);
}

bool findsOtherDimension(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 1; i + 1 < words.size(); ++i) {
        const Unit* const from = words[i].is("->") ? unitOf(words[i - 1].text) : nullptr;
        const Unit* const target = from == nullptr ? nullptr : unitOf(words[i + 1].text);
        if (target == nullptr || target->dimension == from->dimension) {
            continue;
        }
        const Draft draft(words);
        const std::size_t begin = draft.sideBegin(i, "+-");
        // A number, perhaps with a prefix: what is divided or multiplied may be of any dimension.
        const auto isPlain = [&](const Word& word) {
            return word.isNumber() || (isNumberName(word) && unitOf(word.text) == nullptr);
        };
        const bool isLast = i + 2 == words.size() || words[i + 2].is(")") || words[i + 2].is(";");
        if (isLast && std::all_of(words.begin() + static_cast<std::ptrdiff_t>(begin),
                                  words.begin() + static_cast<std::ptrdiff_t>(i) - 1, isPlain)) {
            findings = {std::string(words[i - 1].text), std::string(words[i + 1].text), ""};
            return true;
        }
    }
    return false;
}

bool findsTemperatureAsVariable(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool followsNumber = i > 0 && (words[i - 1].isNumber() || words[i - 1].is(")"));
        if (words[i].text.size() == 1 && isLoneTemperature(words, i) && !followsNumber) {
            findings = {std::string(words[i].text), scaleOf(words[i]), ""};
            return true;
        }
    }
    return false;
}

bool findsLoneTemperature(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!isLoneTemperature(words, i)) {
            continue;
        }
        const Unit& unit = *unitOf(words[i].text);
        const bool isFahrenheit = unit.name == "F";
        const bool isNumberOfIt = i > 0 && words[i - 1].isNumber();
        findings[0] = words[i].text;
        findings[1] = scaleOf(words[i]);
        findings[2] = (isNumberOfIt ? std::string(words[i - 1].text) : "20") + " " + std::string(unit.name) + " -> " +
                      (isFahrenheit ? "C" : "F");
        return true;
    }
    return false;
}

}  // namespace calquo
