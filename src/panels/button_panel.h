// A button panel on the screen, made from its entry in the catalogue.
#pragma once

#include "panels/button_action.h"
#include "panels/catalogue.h"
#include "widgets/button.h"
#include "widgets/panel.h"
#include "workarea/work_area.h"

namespace calquo {

class ButtonPanel : public Panel {
public:
    /// The panel of an entry, its rows one below the other.
    ButtonPanel(WindowHandle parent, const PanelEntry& entry);
    /// A caption panel: one row, under an identifier of its own.
    ButtonPanel(WindowHandle parent, std::uint16_t identifier, PanelRow row);

    /// The panel that a button stands on; null for a button that stands elsewhere.
    static const ButtonPanel* panelOf(const Component& button);

    /// What the catalogue says of a button of this panel.
    const PanelButton& entryOf(const Component& button) const;

private:
    Button& addButton(Panel& row, const PanelButton& entry);

    std::vector<const PanelButton*> entries_;  ///< A button's command is its place here, from 1.
};

/// How a button of the catalogue looks.
ButtonDescription descriptionOf(const PanelButton& entry);

/// Does to the work area what pressing a button does.
void pressButton(WorkArea& workArea, const ButtonPanel& panel, const Component& button, AngleOption angle);

}  // namespace calquo
