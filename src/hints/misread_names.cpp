// The rules for misread names; see misread_names.h.
#include "hints/misread_names.h"

#include <algorithm>
#include <array>

#include "hints/draft.h"
#include "hints/name_facts.h"
#include "hints/trial.h"

namespace calquo {
namespace {

constexpr auto odd = std::to_array<OddUnit>({
    {"ang", "an angstrom, 1e-10 m", "(1e-10 m)"},
    {"barn", "a barn, 1e-28 m2", "(1e-28 m2)"},
    {"dyn", "a dyne, 1e-5 newton", "(1e-5 newton)"},
    {"mil", "a thousandth of an inch", "(0.001 inch)"},
    {"thou", "a thousandth of an inch", "(0.001 inch)"},
    {"amu", "an atomic mass unit, 1.66054e-27 kg", "(1.66054e-27 kg)"},
    {"grain", "a grain, 64.79891 mg", "(64.79891 mg)"},
    {"btuS", "a BTU per second", "(btu/s)"},
    {"gallonLiq", "the US liquid gallon, 3.785 litre", "gallonDry"},
});

/// A unit, what is probably meant when its name is written so, and where.
struct Misreading {
    std::string_view written;    ///< In these letters, capitals included.
    std::string_view write;      ///< What is meant instead.
    std::string_view notBeside;  ///< A dimension: beside one of its units the name means what it says.
};

constexpr auto afterNumbers = std::to_array<Misreading>({
    {"g", "gram", dimension::acceleration},
    {"G", "gram", dimension::acceleration},
    {"gal", "gallon", dimension::acceleration},
    {"Gal", "gallon", dimension::acceleration},
    {"ms", "milli s", dimension::speed},
    {"MS", "mega s", dimension::speed},
    {"Ms", "mega s", dimension::speed},
});

constexpr auto gluedPrefixes = std::to_array<Misreading>({
    {"k", "kilo", {}},
    {"K", "kilo", {}},
    {"M", "mega", {}},
    {"G", "giga", {}},
});

bool has(const Words& words, std::string_view mark) {
    return std::ranges::any_of(words, [&](const Word& word) { return word.is(mark); });
}

bool hasUnitOf(const Words& words, std::string_view dimension, std::string_view except) {
    return std::ranges::any_of(words, [&](const Word& word) {
        const Unit* const unit = word.isName() && !sameLetters(word.text, except) ? unitOf(word.text) : nullptr;
        return unit != nullptr && unit->dimension == dimension;
    });
}

template <typename Rows>
auto* rowOf(const Rows& rows, std::string_view written) {
    const auto row = std::ranges::find(rows, written, &Misreading::written);
    return row == rows.end() ? nullptr : &*row;
}

std::string descriptionFor(std::string_view name) {
    const std::string_view description = descriptionOf(lookup(name));
    return std::string(description.substr(0, description.find(" (")));
}

/// Puts `write` in place of a word, in parentheses where it is of several words after an arrow or a "/".
void replaceUnit(Draft& draft, std::size_t index, std::string_view write) {
    const bool encloses = write.find(' ') != std::string_view::npos && write.front() != '(' &&
                          (draft.at(index - 1).is("->") || draft.at(index - 1).is("/"));
    draft.replace(index, 1, encloses ? "(" + std::string(write) + ")" : std::string(write));
    draft.words[index].afterBlank = draft.endsOperand(index - 1) || draft.at(index - 1).is("->");
}

}  // namespace

std::span<const OddUnit> oddUnits() { return odd; }

bool findsOddUnit(const Situation& situation, Findings& findings) {
    const auto isOdd = [](const Word& word) {
        return std::ranges::any_of(odd, [&](const OddUnit& unit) { return isNamed(word, unit.name); });
    };
    if (std::ranges::none_of(situation.words(), isOdd)) {
        return false;
    }
    Draft draft(situation.words());
    bool found = false;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
        const auto row = std::ranges::find_if(odd, [&](const OddUnit& unit) {
            return draft.words[i].isName() && sameLetters(unit.name, draft.words[i].text);
        });
        if (row != odd.end()) {
            findings = {std::string(row->name), std::string(row->usual), ""};
            replaceUnit(draft, i, row->write);
            found = true;
        }
    }
    findings[2] = draft.text();
    return found && hasResult(findings[2]);
}

bool findsJouleAsImaginary(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const auto isJoule = [](const Word& word) { return isNamed(word, "j"); };
    if (std::ranges::none_of(words, isJoule) || has(words, "->") || !(has(words, "+") || has(words, "-"))) {
        return false;
    }
    Draft draft(words);
    bool found = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (isNamed(words[i], "j")) {
            draft.words[i].text = "i";
            found = true;
        }
    }
    findings[0] = draft.text();
    return found && !hasUnitOf(words, dimension::energy, "j") && hasResult(findings[0]);
}

bool findsUnitAsPrefix(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const auto isLetter = [](const Word& word) { return word.isName() && rowOf(gluedPrefixes, word.text) != nullptr; };
    if (std::ranges::none_of(words, isLetter) || has(words, "->")) {
        return false;
    }
    Draft draft(words);
    bool found = false;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const Misreading* const row = words[i].isName() ? rowOf(gluedPrefixes, words[i].text) : nullptr;
        if (row == nullptr || words[i].afterBlank || !words[i - 1].isNumber()) {
            continue;
        }
        const std::string description = descriptionFor(words[i].text);
        findings = {std::string(words[i].text), description.substr(0, description.find(',')), ""};
        draft.words[i].text = row->write;
        draft.words[i].afterBlank = true;
        found = true;
    }
    findings[2] = draft.text();
    return found && hasResult(findings[2]);
}

bool findsMisreadUnit(const Situation& situation, Findings& findings) {
    const Words& words = situation.words();
    const auto isMisread = [](const Word& word) { return word.isName() && rowOf(afterNumbers, word.text) != nullptr; };
    if (std::ranges::none_of(words, isMisread)) {
        return false;
    }
    Draft draft(words);
    bool found = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Misreading* const row = words[i].isName() ? rowOf(afterNumbers, words[i].text) : nullptr;
        const bool isUnitHere = i > 0 && (words[i - 1].isNumber() || words[i - 1].is("->"));
        if (row == nullptr || !isUnitHere || hasUnitOf(words, row->notBeside, row->written)) {
            continue;
        }
        findings = {std::string(words[i].text), descriptionFor(words[i].text), ""};
        replaceUnit(draft, i, row->write);
        found = true;
    }
    findings[2] = draft.text();
    return found && hasResult(findings[2]);
}

bool findsGravity(const Situation& situation, Findings& /*findings*/) {
    return std::ranges::any_of(situation.words(), [](const Word& word) { return word.isName() && word.is("G"); });
}

}  // namespace calquo
