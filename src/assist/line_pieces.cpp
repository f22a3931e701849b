// Cuts a line as the engine would, and still goes on where the engine would refuse it.
#include "assist/line_pieces.h"

#include "engine/characters.h"
#include "engine/keywords.h"
#include "engine/number_literal.h"
#include "values/errors.h"
#include "values/value.h"

namespace calquo {
namespace {

std::size_t pastNameCharacters(std::string_view line, std::size_t index) {
    while (isNameCharacter(characterAt(line, index))) {
        ++index;
    }
    return index;
}

/// The end of a number that the engine refuses.
std::size_t pastDigits(std::string_view line, std::size_t index) {
    std::size_t end = index;
    const auto isDigitOrMark = [&](char character) {
        const TokenClass kind = classOfCharacter(character);
        return isDecimalDigit(character) || kind == TokenClass::DecimalMark || kind == TokenClass::GroupMark;
    };
    while (isDigitOrMark(characterAt(line, end))) {
        ++end;
    }
    // After a base mark letters are digits.
    const bool hasBase = classOfCharacter(characterAt(line, end)) == TokenClass::BaseMark;
    return hasBase ? pastNameCharacters(line, end + 1) : end;
}

std::size_t numberEnd(std::string_view line, std::size_t index) {
    try {
        Real number = 0;
        return index + readNumber(line, index, number);
    } catch (const Except&) {
        return pastDigits(line, index);
    }
}

}  // namespace

LinePiece pieceAt(std::string_view line, std::size_t index) {
    if (isLetter(line[index])) {
        return {PieceKind::Name, index, pastNameCharacters(line, index)};
    }
    if (const std::size_t end = numberEnd(line, index); end != index) {
        return {PieceKind::Number, index, end};
    }
    return {PieceKind::Other, index, index + 1};
}

std::size_t nameAt(std::string_view line, std::size_t offset) {
    for (std::size_t index = 0; index < line.size() && index <= offset;) {
        const LinePiece piece = pieceAt(line, index);
        const std::size_t name = piece.kind == PieceKind::Name && piece.end >= offset
                                     ? lookup(line.substr(piece.begin, piece.end - piece.begin))
                                     : 0;
        if (name != 0) {
            return name;
        }
        index = piece.end;
    }
    return 0;
}

}  // namespace calquo
