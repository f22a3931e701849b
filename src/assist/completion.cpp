// Searches the names and their descriptions for what has been typed.
#include "assist/completion.h"

#include <algorithm>
#include <cstdint>

#include "assist/line_pieces.h"
#include "assist/name_dimension.h"
#include "engine/characters.h"
#include "engine/keywords.h"
#include "hints/foreign_words.h"

namespace calquo {
namespace {

/// How well a name fits, the best first.
enum class Fit : std::uint8_t { Same, Beginning, OtherWord, Inside, WordOfDescription, InsideDescription, None };

struct Ranked {
    Fit fit;
    std::size_t name;
};

/// Where `part`, written in small letters, is found in `text` from an index on.
std::size_t findWord(std::string_view text, std::string_view part, std::size_t from = 0) {
    const auto equal = [](char one, char other) { return lowerCase(one) == lowerCase(other); };
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(std::min(from, text.size()));
    const auto found = std::search(begin, text.end(), part.begin(), part.end(), equal);
    return found == text.end() && !part.empty() ? std::string_view::npos
                                                : static_cast<std::size_t>(found - text.begin());
}

Fit fitOfDescription(std::string_view description, std::string_view word) {
    Fit best = Fit::None;
    for (std::size_t at = findWord(description, word); at != std::string_view::npos;
         at = findWord(description, word, at + 1)) {
        if (at == 0 || !isNameCharacter(description[at - 1])) {
            return Fit::WordOfDescription;
        }
        best = Fit::InsideDescription;
    }
    return best;
}

/// The name for what other calculators call by a word; 0 where there is none that takes the same arguments.
std::size_t nameForOtherWord(std::string_view word) {
    if (const ForeignName* row = foreignName(word)) {
        return lookup(row->write);
    }
    const ForeignCall* row = foreignCall(word);
    const std::string_view call = row == nullptr ? std::string_view() : row->write;
    const std::string_view name = call.substr(0, call.find('('));
    const std::string_view arguments = call.substr(name.size());
    const bool areSame = arguments == "(#0)" || arguments == "(#1)" || arguments == "(#1; #2)";
    return areSame ? lookup(name) : 0;
}

/// @param otherWord the name that the word is another word for, or 0
Fit fitOf(std::size_t name, std::string_view word, std::size_t otherWord) {
    const std::size_t at = findWord(nameOf(name), word);
    if (at == 0) {
        return nameOf(name).size() == word.size() ? Fit::Same : Fit::Beginning;
    }
    if (name == otherWord) {
        return Fit::OtherWord;
    }
    if (at != std::string_view::npos) {
        return Fit::Inside;
    }
    return findWord(dimensionOf(name), word) == 0 ? Fit::WordOfDescription
                                                  : fitOfDescription(descriptionOf(name), word);
}

std::vector<std::size_t> namesFor(std::string_view word) {
    std::vector<Ranked> ranked;
    const std::size_t otherWord = nameForOtherWord(word);
    for (std::size_t name = 1; name <= keywordCount(); ++name) {
        const bool isReserved = bindingOf(name).as<ReservedName>() != nullptr;
        const Fit fit = isReserved ? Fit::None : fitOf(name, word, otherWord);
        if (fit != Fit::None) {
            ranked.push_back({fit, name});
        }
    }
    std::ranges::stable_sort(ranked, {}, &Ranked::fit);
    std::vector<std::size_t> names(ranked.size());
    std::ranges::transform(ranked, names.begin(), &Ranked::name);
    return names;
}

/// The piece of the line that the caret is in or at the end of; an empty one at the caret where there is none.
LinePiece pieceBefore(std::string_view line, std::size_t caret) {
    for (std::size_t index = 0; index < caret;) {
        const LinePiece piece = pieceAt(line, index);
        if (piece.end >= caret) {
            return piece;
        }
        index = piece.end;
    }
    return {PieceKind::Other, caret, caret};
}

}  // namespace

std::optional<Completion> completionAt(std::string_view line, std::size_t caret) {
    const LinePiece piece = pieceBefore(line, std::min(caret, line.size()));
    if (piece.kind == PieceKind::Name) {
        const std::string_view typed = line.substr(piece.begin, caret - piece.begin);
        return Completion{piece.begin, piece.end, std::string(typed), namesFor(typed)};
    }
    const std::string_view inside = line.substr(piece.begin, piece.end - piece.begin);
    const bool hasBase = inside.find(markCharacter(TokenClass::BaseMark)) != std::string_view::npos;
    if (piece.kind == PieceKind::Number && (piece.end > caret || hasBase)) {
        return std::nullopt;
    }
    return Completion{caret, caret, {}, namesFor({})};
}

std::string textFor(std::size_t name, std::string_view line, const Completion& completion) {
    const auto classAt = [&](std::size_t index) { return classOfCharacter(characterAt(line, index)); };
    const std::size_t before = completion.begin - 1;
    const bool isAfterNumber = completion.begin > 0 && (isDecimalDigit(characterAt(line, before)) ||
                                                        classAt(before) == TokenClass::DecimalMark);
    std::string text(nameOf(name));
    if (isAfterNumber && lowerCase(text[0]) == 'e') {
        text.insert(0, 1, ' ');
    }
    if (!argumentsOf(name).empty()) {
        const bool isOpen = classAt(completion.end) == TokenClass::ListOpen;
        return isOpen ? text : text + markCharacter(TokenClass::ListOpen);
    }
    return isNameCharacter(characterAt(line, completion.end)) ? text + ' ' : text;
}

}  // namespace calquo
