// Changes words of a line and writes the line anew; see draft.h.
#include "hints/draft.h"

#include <algorithm>

#include "engine/keywords.h"

namespace calquo {
namespace {

/// 1 for "(", -1 for ")".
int depthChange(const DraftWord& word) { return word.is("(") ? 1 : word.is(")") ? -1 : 0; }

bool isOneOf(const DraftWord& word, std::string_view limits) {
    return word.kind == WordKind::Mark && word.text.size() == 1 && limits.find(word.text) != std::string_view::npos;
}

}  // namespace

Draft::Draft(const Words& from) {
    words.reserve(from.size());
    for (const Word& word : from) {
        words.push_back({word.kind, std::string(word.text), word.afterBlank});
    }
}

const DraftWord& Draft::at(std::size_t index) const {
    static const DraftWord nothing{WordKind::Mark, ""};
    return index < words.size() ? words[index] : nothing;
}

void Draft::replace(std::size_t index, std::size_t count, std::string text) {
    const bool afterBlank = at(index).afterBlank;
    remove(index, count);
    std::pmr::vector<Word> parts;
    splitIntoWords(text, parts);
    const bool settled = parts.size() != 1;
    const WordKind kind = settled ? WordKind::Name : parts.front().kind;
    words.insert(words.begin() + static_cast<std::ptrdiff_t>(index), {kind, std::move(text), afterBlank, settled});
}

void Draft::insert(std::size_t index, std::string_view mark, bool afterBlank) {
    words.insert(words.begin() + static_cast<std::ptrdiff_t>(index), {WordKind::Mark, std::string(mark), afterBlank});
}

void Draft::remove(std::size_t index, std::size_t count) {
    const auto first = words.begin() + static_cast<std::ptrdiff_t>(index);
    words.erase(first, first + static_cast<std::ptrdiff_t>(std::min(count, words.size() - index)));
}

bool Draft::endsOperand(std::size_t index) const {
    const DraftWord& word = at(index);
    return word.isNumber() || word.kind == WordKind::Name || word.is(")") || word.is("%") || word.is("!");
}

bool Draft::beginsOperand(std::size_t index) const {
    const DraftWord& word = at(index);
    return word.isNumber() || word.kind == WordKind::Name || word.is("(");
}

std::size_t Draft::openingAround(std::size_t index) const {
    int depth = 0;
    while (index-- > 0) {
        depth += depthChange(words[index]);
        if (depth > 0) {
            return index;
        }
    }
    return none;
}

bool Draft::isInList(std::size_t index) const {
    const std::size_t opening = openingAround(index);
    if (opening == none || opening == 0 || !words[opening - 1].isName()) {
        return false;
    }
    const ArgumentClass taken = classOf(lookup(words[opening - 1].text));
    return taken == ArgumentClass::Two || taken == ArgumentClass::Three || taken == ArgumentClass::List;
}

std::size_t Draft::sideEnd(std::size_t index, std::string_view limits) const {
    int depth = 0;
    for (; index < words.size(); ++index) {
        const DraftWord& word = words[index];
        depth += depthChange(word);
        if (depth < 0 || (depth == 0 && (word.is(";") || word.is("->") || isOneOf(word, limits)))) {
            break;
        }
    }
    return index;
}

std::size_t Draft::sideBegin(std::size_t index, std::string_view limits) const {
    int depth = 0;
    for (; index > 0; --index) {
        const DraftWord& word = words[index - 1];
        depth += depthChange(word);
        if (depth > 0 || (depth == 0 && (word.is(";") || word.is("->") || isOneOf(word, limits)))) {
            break;
        }
    }
    return index;
}

std::string Draft::text(std::size_t begin, std::size_t end) const {
    std::string joined;
    for (std::size_t i = begin; i < std::min(end, words.size()); ++i) {
        if (words[i].text.empty()) {
            continue;
        }
        const auto isNameLike = [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        };
        // Two names, or a name and a digit after it, must not run together.
        const bool wouldJoin = !joined.empty() && isNameLike(joined.back()) && isNameLike(words[i].text.front()) &&
                               (words[i].kind == WordKind::Name || i > begin);
        const bool numberThenName = wouldJoin && i > begin && words[i - 1].isNumber() && words[i].isName();
        if (!joined.empty() && (words[i].afterBlank || (wouldJoin && !numberThenName))) {
            joined += ' ';
        }
        joined += words[i].text;
    }
    return joined;
}

}  // namespace calquo
