// The making of button panels, and what their buttons do to the work area.
#include "panels/button_panel.h"

#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The style words of the two sorts of panels.
constexpr std::uint32_t cataloguePanelStyle = 0x7B0100;
constexpr std::uint32_t captionPanelStyle = 0x7E8100;

/// Carries an action out in the line that it was worked out for.
struct Performer {
    WorkArea& workArea;
    const CurrentLine& line;

    void operator()(NoAction) const {}
    void operator()(TypeCharacters typing) const { workArea.typeCharacters(typing.characters); }
    void operator()(const SurroundCharacters& change) const {
        workArea.surround(line, {change.begin, change.end}, change.before, change.after, change.caret);
    }
    void operator()(const ReplaceCharacters& change) const {
        workArea.replaceCharacters(line, {change.begin, change.end}, change.text, change.caret);
    }
    void operator()(EditingOperation operation) const {
        switch (operation) {
            case EditingOperation::Backspace:
                return workArea.pressKey(VK_BACK);
            case EditingOperation::Delete:
                return workArea.pressKey(VK_DELETE);
            case EditingOperation::Enter:
                return workArea.pressKey(VK_RETURN);
            case EditingOperation::Clear:
                return workArea.clear();
            case EditingOperation::Undo:
                return workArea.undo();
            case EditingOperation::Redo:
                return workArea.redo();
        }
    }
};

}  // namespace

ButtonPanel::ButtonPanel(WindowHandle parent, const PanelEntry& entry)
    : Panel(parent, {entry.identifier, cataloguePanelStyle, Direction::Down, true}) {
    for (const PanelRow row : entry.rows) {
        Panel& rowPanel = add<Panel>(Panel::Creation{0, 0, Direction::Across, true});
        for (const PanelButton& button : row) {
            addButton(rowPanel, button);
        }
    }
}

ButtonPanel::ButtonPanel(WindowHandle parent, std::uint16_t identifier, PanelRow row)
    : Panel(parent, {identifier, captionPanelStyle, Direction::Across, true}) {
    for (const PanelButton& button : row) {
        addButton(*this, button);
    }
}

Button& ButtonPanel::addButton(Panel& row, const PanelButton& entry) {
    entries_.push_back(&entry);
    return row.add<Button>(static_cast<std::uint16_t>(entries_.size()), descriptionOf(entry));
}

const ButtonPanel* ButtonPanel::panelOf(const Component& button) {
    for (HWND window = button.parent(); window != nullptr; window = GetAncestor(window, GA_PARENT)) {
        if (const auto* const panel = dynamic_cast<const ButtonPanel*>(Component::of(window))) {
            return panel;
        }
    }
    return nullptr;
}

const PanelButton& ButtonPanel::entryOf(const Component& button) const { return *entries_.at(button.command() - 1U); }

ButtonDescription descriptionOf(const PanelButton& entry) {
    return {entry.label, entry.description, entry.symbol, entry.face, entry.widthNumber, entry.repeats};
}

void pressButton(WorkArea& workArea, const ButtonPanel& panel, const Component& button, AngleOption angle) {
    const CurrentLine line = workArea.currentLine();
    const LineSelection selection{line.text, line.selectionBegin, line.selectionEnd};
    std::visit(Performer{workArea, line}, actionOf(panel.command(), panel.entryOf(button), selection, angle));
}

}  // namespace calquo
