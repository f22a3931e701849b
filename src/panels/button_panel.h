// A button panel on the screen, made from its entry in the catalogue.
#pragma once

#include <functional>
#include <vector>

#include "panels/button_action.h"
#include "panels/catalogue.h"
#include "widgets/panel.h"
#include "workarea/work_area.h"

namespace calquo {

class ButtonPanel : public Panel {
public:
    /// Is told which button of the panel was pressed.
    using Listener = std::function<void(const PanelEntry&, const PanelButton&)>;

    /// When a panel makes the windows of its buttons; it paints them at once.
    enum class Buttons : std::uint8_t { Now, Later };

    /// The panel of an entry, its rows one below the other.
    ButtonPanel(WindowHandle parent, const PanelEntry& entry, Listener listener, Buttons buttons = Buttons::Now);

    std::string spokenName() const override;

protected:
    bool onCommand(const Notification& notification) override;

private:
    const PanelEntry& entry_;
    std::vector<const PanelButton*> buttons_;  ///< A button's command is its position here, from 1.
    Listener listener_;
};

/// Does to the work area what pressing a button of a panel does.
void pressButton(WorkArea& workArea, const PanelEntry& panel, const PanelButton& button, AngleOption angle);

}  // namespace calquo
