// What a person may do to the sheet, as one table: the entries of the work area's context menu, the keys, and what the
// help says of them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/command_ids.h"
#include "widgets/key_stroke.h"
#include "workarea/work_area.h"

namespace calquo {

/// Who answers a key: the main window, which gets its command, or the work area by itself.
enum class KeyOwner : std::uint8_t { Window, WorkArea };

struct SheetCommand {
    Command command = Command::None;  ///< None for a key that has no entry and sends none.
    KeyStroke stroke;
    KeyOwner owner = KeyOwner::WorkArea;
    std::string_view label;        ///< Of its entry in the context menu; empty where it has none.
    std::string_view explanation;  ///< Of its key in the help, as Markdown.
    bool endsGroup = false;        ///< Whether a line parts the entry from the next one.
};

/// The rows, in the order of the menu and of the help.
std::span<const SheetCommand> sheetCommands();

/// The keys that the work area sends to the main window.
std::vector<KeyCommand> windowKeys();

/// What decides which entries can be chosen.
struct SheetState {
    bool isEmpty = true;
    bool hasSelection = false;
    bool lineHasResult = false;
    bool lineIsEmpty = true;
    bool canUndo = false;
    bool canRedo = false;
    bool canPaste = false;
    std::string_view name;  ///< The name of the language at the caret; empty for none.
};

/// An entry of the context menu; one without a label parts groups.
struct ContextMenuEntry {
    Command command = Command::None;
    std::string label;  ///< Its key is after a tab.
    bool isEnabled = false;
};

/// The context menu in a state of the sheet. Help on a name is there only where there is a name.
std::vector<ContextMenuEntry> contextMenu(const SheetState& state);

}  // namespace calquo
