// The search among the names and their descriptions.
#include "assist/completion.h"

#include <algorithm>
#include <cstdint>

#include "assist/line_pieces.h"
#include "assist/name_dimension.h"
#include "engine/characters.h"
#include "engine/keywords.h"

namespace calquo {
namespace {

/// How well a name fits, the best first.
enum class Fit : std::uint8_t { Same, Beginning, Inside, WordOfDescription, InsideDescription, None };

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

Fit fitOf(std::size_t name, std::string_view word) {
    const std::size_t at = findWord(nameOf(name), word);
    if (at == 0) {
        return nameOf(name).size() == word.size() ? Fit::Same : Fit::Beginning;
    }
    if (at != std::string_view::npos) {
        return Fit::Inside;
    }
    return findWord(dimensionOf(name), word) == 0 ? Fit::WordOfDescription
                                                  : fitOfDescription(descriptionOf(name), word);
}

std::vector<std::size_t> namesFor(std::string_view word) {
    std::vector<Ranked> ranked;
    for (std::size_t name = 1; name <= keywordCount(); ++name) {
        const bool isReserved = bindingOf(name).as<ReservedName>() != nullptr;
        const Fit fit = isReserved ? Fit::None : fitOf(name, word);
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
    std::string text(nameOf(name));
    const bool isFunction = !argumentsOf(name).empty();
    const bool isOpen = classOfCharacter(characterAt(line, completion.end)) == TokenClass::ListOpen;
    if (isFunction && !isOpen) {
        text += markCharacter(TokenClass::ListOpen);
    }
    return text;
}

}  // namespace calquo
