// A line that is still being written, cut into numbers, names and other characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace calquo {

enum class PieceKind : std::uint8_t { Number, Name, Other };

/// Characters of a line, from one index to another.
struct LinePiece {
    PieceKind kind = PieceKind::Other;
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The piece that begins at an index below the line's length. Never raises: of a number that is malformed or not yet
/// complete, the digits count, so that a name may begin right after them. A name need not be one of the language.
LinePiece pieceAt(std::string_view line, std::size_t index);

/// The index of the language's name that holds the place before or after the character at `offset`, 0 for none.
std::size_t nameAt(std::string_view line, std::size_t offset);

}  // namespace calquo
