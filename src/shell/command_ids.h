// The command identifiers that menus, panels and windows share.
#pragma once

#include <cstdint>

#include "format/numeric_format.h"
#include "panels/angle_options.h"
#include "panels/catalogue.h"

namespace calquo {

/// The commands that have one identifier each; the panels, the formats and the angles have ranges below.
enum class Command : std::uint16_t {
    None = 0,
    WorkArea = 1,  ///< Carried by the work area's own notifications.
    ClearWorkArea = 0x120,

    // Those of the work area's context menu and of keys; the main menu does not have them.
    BringBackWorkArea = 0x121,
    Evaluate = 0x122,
    EvaluateAll = 0x123,
    AddSum = 0x124,
    HelpOnName = 0x125,
    Undo = 0x130,
    Redo = 0x131,
    Cut = 0x132,
    Copy = 0x133,
    CopyResult = 0x134,
    CopyFullResult = 0x135,
    Paste = 0x136,
    Delete = 0x137,
    SelectAll = 0x138,
    SaveAgain = 0x162,

    ReadDefaultFile = 0x140,
    SaveDefaultFile = 0x141,
    ReadDefaultAtStartup = 0x142,
    SaveDefaultAtExit = 0x143,
    SelectDefaultFile = 0x144,
    ReadFromFile = 0x160,
    SaveAsFile = 0x161,
    ShowDetails = 0x170,  ///< Keys', these two.
    CompleteName = 0x171,
    ResetFormats = 0x541,
    HelpContents = 0xA20,
    About = 0xA60,
    Exit = 0x7FFF,
    HideButtons = 0x8010,
};

constexpr std::uint16_t identifierOf(Command command) { return static_cast<std::uint16_t>(command); }

/// Identifiers that share one command and differ in what it acts on; both ends belong to the range.
struct CommandRange {
    std::uint16_t first;
    std::uint16_t last;

    constexpr bool contains(std::uint16_t identifier) const { return identifier >= first && identifier <= last; }
};

/// Open or close the panel of the same identifier.
inline constexpr CommandRange panelCommands{0xA001, 0xDFFE};

/// What is done to the sheet's text.
inline constexpr CommandRange evaluationCommands{identifierOf(Command::Evaluate), identifierOf(Command::AddSum)};
inline constexpr CommandRange editingCommands{identifierOf(Command::Undo), identifierOf(Command::SelectAll)};

/// Turn the angle option of the same identifier on and off.
inline constexpr CommandRange angleCommands{angleRows.front().command, angleRows.back().command};
static_assert(angleCommands.last - angleCommands.first + 1 == angleRows.size());

/// Added to the identifier that selects a format, gives the one that modifies it.
inline constexpr std::uint16_t modifyFormatBase = 0x4000;

/// Select, or open the dialog of, the format whose index is the identifier less the first of the range.
inline constexpr CommandRange selectFormatCommands{0x511, 0x517};
inline constexpr CommandRange modifyFormatCommands{selectFormatCommands.first + modifyFormatBase,
                                                   selectFormatCommands.last + modifyFormatBase};
static_assert(selectFormatCommands.last - selectFormatCommands.first + 1 == formatKinds.size());

/// The format that an identifier of one of the two ranges is about.
constexpr FormatKind formatOf(CommandRange range, std::uint16_t identifier) {
    return static_cast<FormatKind>(identifier - range.first);
}

}  // namespace calquo
