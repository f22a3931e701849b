// The search in the tables; see unknown_names.h.
#include "hints/unknown_names.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "engine/characters.h"
#include "engine/keywords.h"
#include "hints/foreign_words.h"
#include "hints/words_of_line.h"
#include "units/named_constants.h"
#include "units/unit_table.h"

namespace calquo {
namespace {

constexpr std::size_t shortestPlural = 3;

bool isUnit(std::string_view word) {
    const std::size_t index = lookup(word);
    return index != 0 && std::ranges::any_of(unitTable, [&](const Unit& unit) {
               return nameOf(lookup(unit.name)) == nameOf(index) ||
                      std::ranges::any_of(unit.aliases,
                                          [&](const Alias& alias) { return sameLetters(alias.name, word); });
           });
}

/// A unit's own name, or what the table of foreign words has for it.
std::optional<Replacement> unitFor(std::string_view word) {
    if (isUnit(word)) {
        return Replacement{std::string(nameOf(lookup(word)))};
    }
    if (const ForeignName* row = foreignName(word)) {
        return Replacement{std::string(row->write), row->note};
    }
    return std::nullopt;
}

/// "miles", "inches": a unit without its plural's end.
std::optional<Replacement> singularOf(std::string_view word) {
    for (const std::string_view ending : {"s", "es"}) {
        const bool ends = word.size() >= shortestPlural + ending.size() &&
                          sameLetters(word.substr(word.size() - ending.size()), ending);
        if (const auto unit = ends ? unitFor(word.substr(0, word.size() - ending.size())) : std::nullopt) {
            return unit;
        }
    }
    return std::nullopt;
}

/// "Horsepower": the unit whose description begins with the word, and goes on in parentheses at most.
std::optional<Replacement> describedBy(std::string_view word) {
    const auto fits = [&](const Unit& unit) {
        const std::string_view whole = unit.description.substr(0, unit.description.find(" ("));
        return sameLetters(whole, word);
    };
    const auto* const unit = std::ranges::find_if(unitTable, fits);
    return unit == unitTable.end() ? std::nullopt : std::optional(Replacement{std::string(unit->name)});
}

std::optional<Replacement> withoutPrefix(std::string_view word) {
    for (const NamedConstant& prefix : prefixes) {
        const std::size_t length = prefix.name.size();
        if (word.size() > length && sameLetters(word.substr(0, length), prefix.name)) {
            const std::string_view rest = word.substr(length);
            auto unit = unitFor(rest);
            unit = unit ? unit : singularOf(rest);
            if (unit) {
                return Replacement{std::string(prefix.name) + " " + unit->text, unit->note};
            }
        }
    }
    return std::nullopt;
}

std::optional<Replacement> withPrefixLetter(std::string_view word) {
    for (const PrefixLetter& row : prefixLetters()) {
        const std::string_view symbol = word.substr(std::min(row.letter.size(), word.size()));
        if (!word.starts_with(row.letter) || symbol.empty()) {
            continue;
        }
        const std::string prefix(row.prefix);
        if (const ForeignName* name = foreignName(symbol); name != nullptr && name->takesPrefix) {
            const bool isNumber = name->write == "1";
            const bool isFraction = name->write.find('/') != std::string_view::npos;
            return Replacement{isNumber ? prefix
                                        : prefix + (isFraction ? " (" : " ") + std::string(name->write) +
                                              (isFraction ? ")" : "")};
        }
        if (const MissingWord* unit = missingWord(symbol); unit != nullptr && unit->takesPrefix) {
            return Replacement{prefix, unit->reason};
        }
        if (symbol == "m" || symbol == "s" || symbol == "j" || symbol == "J" || sameLetters(symbol, "bar")) {
            return Replacement{prefix + " " + std::string(nameOf(lookup(symbol)))};
        }
    }
    return std::nullopt;
}

/// How many letters must be left out, put in, replaced or exchanged with the next to make one name of another; `most`
/// plus one when there are more.
/// Method: the optimal string alignment distance, over three rows of its table.
std::size_t distance(std::string_view a, std::string_view b, std::size_t most) {
    constexpr std::size_t longest = 24;
    if (a.size() >= longest || b.size() >= longest ||
        std::max(a.size(), b.size()) - std::min(a.size(), b.size()) > most) {
        return most + 1;
    }
    std::array<std::size_t, longest> before{}, last{}, row{};
    for (std::size_t j = 0; j <= b.size(); ++j) {
        last[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = lowerCase(a[i - 1]) == lowerCase(b[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && lowerCase(a[i - 1]) == lowerCase(b[j - 2]) &&
                lowerCase(a[i - 2]) == lowerCase(b[j - 1])) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
        before = last;
        last = row;
    }
    return last[b.size()];
}

}  // namespace

std::optional<Replacement> replacementFor(std::string_view word) {
    const ForeignName* const row = foreignName(word);
    if (row != nullptr && row->word == word) {
        return Replacement{std::string(row->write), row->note};
    }
    // "kN" is a kilonewton before it is a knot.
    if (auto found = withPrefixLetter(word)) {
        return found;
    }
    if (row != nullptr) {
        return Replacement{std::string(row->write), row->note};
    }
    for (const auto& find : {singularOf, withoutPrefix, describedBy}) {
        if (auto found = find(word)) {
            return found;
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> nearestNames(std::string_view word) {
    constexpr std::size_t mostNames = 3;
    constexpr std::size_t longEnoughForTwo = 6;
    if (word.size() < 2) {
        return {};
    }
    const std::size_t most = word.size() >= longEnoughForTwo ? 2 : 1;
    std::vector<std::tuple<std::size_t, std::string_view>> near;
    for (std::size_t index = 1; index <= keywordCount(); ++index) {
        const std::string_view name = nameOf(index);
        std::size_t far = name.size() < 2 ? most + 1 : distance(word, name, most);
        if (far > most && word.size() >= 3 && name.size() > word.size() &&
            sameLetters(name.substr(0, word.size()), word)) {
            far = most;
        }
        if (far <= most) {
            near.emplace_back(far, name);
        }
    }
    std::ranges::stable_sort(near, {}, [](const auto& entry) { return std::get<0>(entry); });
    near.resize(std::min(near.size(), mostNames));
    std::vector<std::string_view> names(near.size());
    std::ranges::transform(near, names.begin(), [](const auto& entry) { return std::get<1>(entry); });
    return names;
}

}  // namespace calquo
