// The open button panels, one below the other in the order in which they were opened, in a column that scrolls.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "panels/button_panel.h"
#include "shell/window_layout.h"
#include "widgets/scroller.h"

namespace calquo {

class OpenPanels {
public:
    /// `listener` is told which buttons of the panels are pressed.
    explicit OpenPanels(ButtonPanel::Listener listener) : listener_(std::move(listener)) {}

    /// Opens a panel of the catalogue on `parent`, below the others; nothing happens for another identifier.
    void open(WindowHandle parent, std::uint16_t identifier, ButtonPanel::Buttons buttons = ButtonPanel::Buttons::Now);
    /// Makes the windows of buttons that are to be made later, for one panel; false when none is left.
    bool makeButtons();
    void close(std::uint16_t identifier);
    /// Scrolls to an open panel as soon as the panels are shown in a layout.
    void bringIntoView(std::uint16_t identifier) { awaited_ = identifier; }

    std::vector<std::uint16_t> identifiers() const;
    /// Takes over the scale in force.
    void fitToScale();
    std::vector<Size> preferredSizes() const;

    /// Moves the column and the panels to their rectangles, or hides them all.
    void layOut(const WindowLayout& layout);
    /// Scrolls the column when the wheel is turned over it; false when that has no effect.
    bool turnWheel(const WheelEvent& turn) { return column_ != nullptr && column_->turnWheel(turn); }

private:
    ButtonPanel::Listener listener_;
    std::unique_ptr<Scroller> column_;  ///< Made with the first panel.
    std::vector<std::unique_ptr<ButtonPanel>> panels_;
    std::optional<std::uint16_t> awaited_;  ///< The panel that is to be seen.
};

}  // namespace calquo
