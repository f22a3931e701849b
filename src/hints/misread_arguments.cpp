// The arguments of calls, by their places; see misread_arguments.h.
#include "hints/misread_arguments.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/characters.h"
#include "engine/number_literal.h"
#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"
#include "values/errors.h"

namespace calquo {
namespace {

/// Words of a line from one index to another.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The arguments of the call whose name stands at an index; none where it is no call that is closed.
std::vector<Range> argumentsOfCall(const Draft& draft, std::size_t name) {
    std::vector<Range> arguments;
    for (std::size_t begin = name + 2; draft.at(name + 1).is("(");) {
        std::size_t end = draft.sideEnd(begin, "");
        while (draft.at(end).is("->")) {
            end = draft.sideEnd(end + 1, "");
        }
        arguments.push_back({begin, end});
        if (!draft.at(end).is(";")) {
            return draft.at(end).is(")") ? arguments : std::vector<Range>();
        }
        begin = end + 1;
    }
    return arguments;
}

/// The place of the argument that is called `name` in the functions' table, counted from 0.
std::size_t placeOf(std::string_view name, std::string_view arguments) {
    const std::size_t place = arguments.find("; " + std::string(name) + ";");
    const auto before = arguments.substr(0, place == std::string_view::npos ? 0 : place + 1);
    return static_cast<std::size_t>(std::ranges::count(before, ';'));
}

/// The rate of interest in a call of a financial function; no words where there is none.
Range rateIn(const Draft& draft, const Words& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t place = placeOf("rate", argumentsOf(words[i].keyword));
        const std::vector<Range> arguments = place == 0 ? std::vector<Range>() : argumentsOfCall(draft, i);
        if (place < arguments.size()) {
            return arguments[place];
        }
    }
    return {};
}

Real valueOf(std::string_view number) {
    Real value = 0;
    try {
        return readNumber(number, 0, value) == number.size() ? value : 0;
    } catch (const Except&) {
        return 0;
    }
}

/// How many periods of use a year has.
constexpr std::array<std::string_view, 6> periodsOfYear = {"2", "4", "12", "52", "365", "360"};

bool isWhole(Real value) { return std::fabs(value - std::round(value)) < 1e-15L; }

}  // namespace

bool findsWholeRate(const Situation& situation, Findings& findings) {
    Draft draft(situation.words());
    const auto [begin, end] = rateIn(draft, situation.words());
    if (end != begin + 1 || !draft.at(begin).isNumber() || valueOf(draft.at(begin).text) < 1) {
        return false;
    }
    const std::string rate = draft.at(begin).text;
    draft.replace(begin, 1, rate + "%");
    Answer percent;
    evaluates(rate + "*100", situation.settings.format, percent);
    findings = {rate, percent.text, draft.text()};
    return hasResult(findings[2]);
}

bool findsDividedRate(const Situation& situation, Findings& findings) {
    Draft draft(situation.words());
    const auto [begin, end] = rateIn(draft, situation.words());
    const bool isDivided = end >= begin + 3 && draft.at(end - 2).is("/") &&
                           std::ranges::find(periodsOfYear, draft.at(end - 1).text) != periodsOfYear.end();
    if (!isDivided) {
        return false;
    }
    findings[0] = draft.text(begin, end);
    draft.remove(end - 2, 2);
    findings[1] = draft.text();
    return hasResult(findings[1]);
}

bool findsSwappedArguments(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool isRoot = isNamed(words[i], "root");
        if (!isRoot && !isNamed(words[i], "logB")) {
            continue;
        }
        Draft draft(words);
        const std::vector<Range> arguments = argumentsOfCall(draft, i);
        if (arguments.size() != 2) {
            continue;
        }
        const std::string first = draft.text(arguments[0].begin, arguments[0].end);
        const std::string second = draft.text(arguments[1].begin, arguments[1].end);
        const auto call = [&](const std::string& left, const std::string& right) {
            return std::string(words[i].text).append("(").append(left).append("; ").append(right).append(")");
        };
        const std::string exchanged = call(second, first);
        Answer present, meant;
        // A root of a small degree is as likely as it looks.
        constexpr Real rareDegree = 8;
        const NumericFormat format = situation.settings.format;
        if (!evaluates(call(first, second), format, present) || isWhole(present.value.re) ||
            !evaluates(exchanged, format, meant) || !isWhole(meant.value.re) || meant.value.re < 2 ||
            (isRoot && valueOf(second) < rareDegree)) {
            continue;
        }
        draft.replace(i, arguments[1].end + 1 - i, exchanged);
        const std::string form(argumentsOf(words[i].keyword));
        findings = {std::string(nameOf(words[i].keyword)).append("(").append(form).append(")"), draft.text(), ""};
        return true;
    }
    return false;
}

bool findsBitsShiftedOut(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    Draft draft(words);
    const bool isShift = !words.empty() && isNamed(words[0], "bShift");
    const std::vector<Range> arguments = isShift ? argumentsOfCall(draft, 0) : std::vector<Range>();
    const bool isWholeLine = arguments.size() == 2 && arguments[1].end + 1 == words.size();
    if (!isWholeLine || situation.answer->value.re != 0 || !draft.at(arguments[1].begin).isNumber() ||
        draft.at(arguments[0].begin).is("0")) {
        return false;
    }
    draft.insert(arguments[1].begin, "-", true);
    draft.words[arguments[1].begin + 1].afterBlank = false;
    findings[0] = draft.text();
    return hasResult(findings[0]);
}

}  // namespace calquo
