// The making of button panels, and what their buttons do to the work area.
#include "panels/button_panel.h"

#include <utility>

#include "widgets/button.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uint32_t panelStyle = 0x7B0100;

ButtonDescription descriptionOf(const PanelButton& entry) {
    return {entry.label, entry.description, entry.symbol, entry.face, entry.extraHalfWidths, entry.repeats};
}

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

ButtonPanel::ButtonPanel(WindowHandle parent, const PanelEntry& entry, Listener listener, Buttons buttons)
    : Panel(parent, {.command = entry.identifier,
                     .style = panelStyle,
                     .paintsChildren = true,
                     .makesChildrenLater = buttons == Buttons::Later}),
      entry_(entry),
      listener_(std::move(listener)) {
    for (const PanelRow row : entry.rows) {
        Panel& rowPanel = add<Panel>(Panel::Creation{0, 0, Direction::Across, true});
        for (const PanelButton& button : row) {
            buttons_.push_back(&button);
            rowPanel.add<Button>(static_cast<std::uint16_t>(buttons_.size()), descriptionOf(button));
        }
    }
}

std::string ButtonPanel::spokenName() const {
    return withoutMnemonic(labelOf(entry_.group)) + ", " + withoutMnemonic(entry_.menuLabel);
}

bool ButtonPanel::onCommand(const Notification& notification) {
    if (isPress(notification)) {
        listener_(entry_, *buttons_.at(notification.command - 1U));
    }
    return true;
}

void pressButton(WorkArea& workArea, const PanelEntry& panel, const PanelButton& button, AngleOption angle) {
    const CurrentLine line = workArea.currentLine();
    const LineSelection selection{line.text, line.selectionBegin, line.selectionEnd, line.carried};
    std::visit(Performer{workArea, line}, actionOf(panel, button, selection, angle));
}

}  // namespace calquo
