// What a pressed button does to the work area, decided from its panel, its label and the line with the selection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "panels/angle_options.h"
#include "panels/catalogue.h"

namespace calquo {

/// The line that holds the selection, one character for each of the control's, and the selection's offsets in it.
struct LineSelection {
    std::string_view text;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t carried = 0;  ///< So many characters before the caret are a result that has just been carried on.
};

/// Nothing is to be done to the work area.
struct NoAction {};

/// Characters to be typed at the caret, as the keyboard would; they replace the selection.
struct TypeCharacters {
    std::string_view characters;
};

/// An operation of the work area. The first three are keys to be pressed.
enum class EditingOperation : std::uint8_t { Backspace, Delete, Enter, Clear, Undo, Redo };

/// Text that goes around the line's characters from `begin` to `end`. These stay as they are: they may be characters
/// that only the control knows.
struct SurroundCharacters {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string before;
    std::string after;
    std::size_t caret = 0;  ///< An offset in the changed line.
};

/// Text that takes the place of the line's characters from `begin` to `end`.
struct ReplaceCharacters {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string text;
    std::size_t caret = 0;  ///< An offset in the changed line.
};

using ButtonAction = std::variant<NoAction, TypeCharacters, EditingOperation, SurroundCharacters, ReplaceCharacters>;

/// What pressing a button of a panel does. The selection counts as far as it lies in the line. A result that has just
/// been carried on is an argument for a function, and gives way to a name that takes none, but not to a unit.
ButtonAction actionOf(const PanelEntry& panel, const PanelButton& button, const LineSelection& line, AngleOption angle);

}  // namespace calquo
