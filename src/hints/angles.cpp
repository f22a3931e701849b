// The rules for functions of angles; see angles.h.
#include "hints/angles.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"
#include "values/extended.h"

namespace calquo {
namespace {

constexpr std::array<std::string_view, 6> ofAngles = {"sin", "cos", "tan", "sec", "csc", "cot"};
constexpr std::array<std::string_view, 6> toAngles = {"aSin", "aCos", "aTan", "aSec", "aCsc", "aCot"};

template <typename Names>
bool isOneOf(const Names& names, const Word& word) {
    return std::ranges::any_of(names, [&](std::string_view name) { return isNamed(word, name); });
}

/// Whether the words from `begin` to `end` are numbers and operators alone, and at least one number.
bool isBareNumber(const Words& words, std::size_t begin, std::size_t end) {
    bool hasNumber = false;
    for (std::size_t i = begin; i < end; ++i) {
        hasNumber = hasNumber || words[i].isNumber();
        if (words[i].isName() || words[i].is("%") || words[i].is(";")) {
            return false;
        }
    }
    return hasNumber;
}

std::size_t closingOf(const Words& words, std::size_t opening) {
    int depth = 0;
    for (std::size_t i = opening; i < words.size(); ++i) {
        depth += words[i].is("(") ? 1 : words[i].is(")") ? -1 : 0;
        if (depth == 0) {
            return i;
        }
    }
    return words.size();
}

/// The unit that a plain number was probably meant in.
std::string_view meantUnit(const HintSettings& settings) {
    return settings.angleUnit.empty() ? std::string_view("deg") : settings.angleUnit;
}

}  // namespace

bool findsRadiansForDegrees(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    if (situation.settings.angleUnit == "rad") {
        return false;
    }
    // Radians above this are rare without pi, degrees below it are; where people have chosen degrees, all are.
    const Real least = situation.settings.angleUnit.empty() ? 10 : 1;
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        if (!isOneOf(ofAngles, words[i])) {
            continue;
        }
        const bool isCall = words[i + 1].is("(");
        const std::size_t begin = isCall ? i + 2 : i + 1;
        const std::size_t end = isCall ? closingOf(words, i + 1) : i + 2;
        Answer angle;
        Draft draft(words);
        if (end > words.size() || !isBareNumber(words, begin, end) ||
            !evaluates(draft.text(begin, end), situation.settings.format, angle) || angle.value.im != 0 ||
            std::fabs(angle.value.re) < least) {
            continue;
        }
        findings[0] = draft.text(i, isCall ? end + 1 : end);
        const std::string inside = draft.text(begin, end);
        const std::string written =
            (end - begin == 1 ? inside : "(" + inside + ")") + " " + std::string(meantUnit(situation.settings));
        draft.replace(i, (isCall ? end + 1 : end) - i, std::string(words[i].text) + "(" + written + ")");
        findings[1] = draft.text();
        return true;
    }
    return false;
}

bool findsAngleInRadians(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const std::string_view unit = meantUnit(situation.settings);
    if (unit == "rad" || words.size() < 2 || !isOneOf(toAngles, words[0]) || situation.answer->value.im != 0) {
        return false;
    }
    // Nobody has chosen degrees: but an angle of whole ones is hardly wanted in radians.
    constexpr Real wholeAngle = pi / 12;
    const Real angles = situation.answer->value.re / wholeAngle;
    const bool isWholeAngle = angles != 0 && std::fabs(angles - std::round(angles)) < 1e-12L;
    if (situation.settings.angleUnit.empty() && !isWholeAngle) {
        return false;
    }
    const bool isWholeLine = words[1].is("(") ? closingOf(words, 1) + 1 == words.size() : words.size() == 2;
    findings = {std::string(unit), std::string(situation.expression) + " -> " + std::string(unit), ""};
    return isWholeLine;
}

bool findsShortArgument(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i + 2 < words.size(); ++i) {
        const bool takesOne = words[i].keyword != 0 && classOf(words[i].keyword) == ArgumentClass::One;
        const Word& argument = words[i + 1];
        if (!takesOne || !(argument.isNumber() || isNumberName(argument))) {
            continue;
        }
        const Word& next = words[i + 2];
        const bool isPower = (next.is("^") || next.is("**")) && i + 3 < words.size();
        const bool isFactor = argument.isNumber() && isNumberName(next);
        const bool isPartOfPi = isOneOf(ofAngles, words[i]) && isNamed(argument, "pi") && next.is("/");
        if (!isPower && !isFactor && !isPartOfPi) {
            continue;
        }
        std::size_t end = isPartOfPi ? i + 2 : i + 3;
        if (isPower) {
            end += words[end].is("-") ? 1 : 0;
            end = end < words.size() && words[end].is("(") ? closingOf(words, end) + 1 : end + 1;
        } else {
            while (end < words.size() && isNumberName(words[end])) {
                ++end;
            }
            // "sin pi/2", "cos 2pi/3": a part of the circle.
            const bool isPart = end + 1 < words.size() && words[end].is("/") && words[end + 1].isNumber();
            end += isPart && isOneOf(ofAngles, words[i]) && isNamed(words[end - 1], "pi") ? 2 : 0;
        }
        Draft draft(words);
        const std::string call = std::string(words[i].text) + "(" + draft.text(i + 1, end) + ")";
        draft.replace(i, std::min(end, words.size()) - i, call);
        findings = {std::string(words[i].text), draft.text(), ""};
        // "tan 90 deg": that there is none is what there is to know.
        return hasResult(findings[1]) || isOneOf(ofAngles, words[i]);
    }
    return false;
}

}  // namespace calquo
