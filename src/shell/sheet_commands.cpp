// The table of what a person may do to the sheet.
#include "shell/sheet_commands.h"

#include <algorithm>

namespace calquo {
namespace {

constexpr KeyOwner window = KeyOwner::Window;
constexpr KeyOwner workArea = KeyOwner::WorkArea;
constexpr bool last = true;

constexpr KeyStroke none{};
constexpr KeyStroke plain(std::uint32_t key) { return {key, Modifiers::None}; }
constexpr KeyStroke control(std::uint32_t key) { return {key, Modifiers::Control}; }
constexpr KeyStroke controlShift(std::uint32_t key) { return {key, Modifiers::ControlShift}; }

constexpr SheetCommand rows[] = {
    {Command::Undo, control('Z'), workArea, "&Undo", "takes back the last change"},
    {Command::Redo, control('Y'), workArea, "&Redo", "makes it again", last},
    {Command::Cut, control('X'), workArea, "Cu&t", "cuts the selection out"},
    {Command::Copy, control('C'), window, "&Copy",
     "copies the selection; with nothing selected the result of the line, as it shows"},
    {Command::CopyResult, none, window, "Copy Resu&lt", ""},
    {Command::CopyFullResult, controlShift('C'), window, "Copy Result in &Full",
     "copies the result of the line with all its digits and without group marks"},
    {Command::Paste, control('V'), workArea, "&Paste", "pastes"},
    {Command::Delete, plain(key::remove), workArea, "&Delete",
     "deletes the selection, or the character after the caret"},
    {Command::SelectAll, control('A'), workArea, "Select &All", "selects everything", last},
    {Command::Evaluate, plain(key::enter), workArea, "&Evaluate",
     "calculates the line, see [What Enter does](work_area.md#what-enter-does)"},
    {Command::None, {key::enter, Modifiers::Some}, workArea, "", "begins a new line without calculating"},
    {Command::None, plain(key::f9), workArea, "", "puts the line's result in place of the selection"},
    {Command::EvaluateAll, plain(key::f5), window, "E&valuate All",
     "calculates every line that has a result anew, see [All lines anew](work_area.md#all-lines-anew)"},
    {Command::AddSum, control('T'), window, "&Sum",
     "adds the sum of the selected lines below them, see [The sum of lines](work_area.md#the-sum-of-lines)", last},
    {Command::ShowDetails, control('D'), window, "Deta&ils", "shows [more about the line's value](details.md)"},
    {Command::CompleteName, control(key::space), window, "Complete &Name",
     "shows [the names that may be meant](completion.md#completing-a-name) at the caret", last},
    {Command::HelpOnName, none, window, "&Help on ", ""},
    {Command::BringBackWorkArea, controlShift('T'), window, "&Bring Back Last Sheet",
     "brings back the last sheet, see [The kept sheet](files.md#the-kept-sheet); again: the one before"},
    {Command::SaveAgain, control('S'), window, "",
     "saves to the file that was read or saved last; without one it is *File > Save As File*"},
    {Command::ReadFromFile, control('O'), window, "", "is *File > Read From File*"},
    {Command::HelpContents, {key::f1, Modifiers::Any}, window, "", "opens this help"},
};

bool isEnabled(Command command, const SheetState& state) {
    switch (command) {
        case Command::Undo:
            return state.canUndo;
        case Command::Redo:
            return state.canRedo;
        case Command::Cut:
        case Command::Copy:
        case Command::Delete:
        case Command::AddSum:
            return state.hasSelection;
        case Command::CopyResult:
        case Command::CopyFullResult:
            return state.lineHasResult;
        case Command::Paste:
            return state.canPaste;
        case Command::SelectAll:
        case Command::EvaluateAll:
            return !state.isEmpty;
        case Command::Evaluate:
            return !state.lineIsEmpty;
        case Command::HelpOnName:
            return !state.name.empty();
        default:
            return true;
    }
}

std::string labelOf(const SheetCommand& row, const SheetState& state) {
    std::string label(row.label);
    if (row.command == Command::HelpOnName) {
        label += state.name;
    }
    const std::string keys = keyText(row.stroke);
    return keys.empty() ? label : label + '\t' + keys;
}

}  // namespace

std::span<const SheetCommand> sheetCommands() { return rows; }

std::vector<KeyCommand> windowKeys() {
    std::vector<KeyCommand> keys;
    for (const SheetCommand& row : rows) {
        if (row.owner == KeyOwner::Window && row.stroke.key != 0) {
            keys.push_back({row.stroke.key, row.stroke.modifiers, identifierOf(row.command)});
        }
    }
    return keys;
}

std::vector<ContextMenuEntry> contextMenu(const SheetState& state) {
    std::vector<ContextMenuEntry> entries;
    for (const SheetCommand& row : rows) {
        if (!row.label.empty() && (row.command != Command::HelpOnName || !state.name.empty())) {
            entries.push_back({row.command, labelOf(row, state), isEnabled(row.command, state)});
        }
        if (row.endsGroup) {
            entries.push_back({});
        }
    }
    return entries;
}

}  // namespace calquo
