// The open button panels, one below the other in the order in which they were opened.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "panels/button_panel.h"
#include "widgets/geometry.h"

namespace calquo {

class OpenPanels {
public:
    /// `listener` is told which buttons of the panels are pressed.
    explicit OpenPanels(ButtonPanel::Listener listener) : listener_(std::move(listener)) {}

    /// Opens a panel of the catalogue on `parent`, below the others; nothing happens for another identifier.
    void open(WindowHandle parent, std::uint16_t identifier);
    void close(std::uint16_t identifier);

    std::vector<std::uint16_t> identifiers() const;
    /// Takes over the scale in force.
    void fitToScale();
    std::vector<Size> preferredSizes() const;

    /// Moves each panel to its rectangle, and hides or shows them all.
    void layOut(const std::vector<Rectangle>& rectangles, bool hidden);

private:
    ButtonPanel::Listener listener_;
    std::vector<std::unique_ptr<ButtonPanel>> panels_;
};

}  // namespace calquo
