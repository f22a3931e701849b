// The panels' windows.
#include "shell/open_panels.h"

#include <algorithm>

#include "panels/catalogue.h"

namespace calquo {

void OpenPanels::open(WindowHandle parent, std::uint16_t identifier, ButtonPanel::Buttons buttons) {
    if (const PanelEntry* const entry = findPanel(identifier)) {
        if (column_ == nullptr) {
            column_ = std::make_unique<Scroller>(parent);
        }
        panels_.push_back(std::make_unique<ButtonPanel>(column_->content(), *entry, listener_, buttons));
    }
}

bool OpenPanels::makeButtons() {
    return std::ranges::any_of(panels_, [](const auto& panel) { return panel->makeChildren(); });
}

void OpenPanels::close(std::uint16_t identifier) {
    std::erase_if(panels_, [&](const auto& panel) { return panel->command() == identifier; });
}

std::vector<std::uint16_t> OpenPanels::identifiers() const {
    std::vector<std::uint16_t> identifiers;
    for (const auto& panel : panels_) {
        identifiers.push_back(panel->command());
    }
    return identifiers;
}

void OpenPanels::fitToScale() {
    for (const auto& panel : panels_) {
        panel->fitToScale();
    }
}

std::vector<Size> OpenPanels::preferredSizes() const {
    std::vector<Size> sizes;
    for (const auto& panel : panels_) {
        sizes.push_back(panel->preferredSize());
    }
    return sizes;
}

void OpenPanels::layOut(const WindowLayout& layout) {
    if (layout.column.width == 0) {
        if (column_ != nullptr) {
            column_->hide();
        }
        return;
    }
    const Rectangle& lowest = layout.panels.back();
    column_->place(layout.column, lowest.top + lowest.height);
    for (std::size_t index = 0; index < panels_.size(); ++index) {
        ButtonPanel& panel = *panels_[index];
        const Rectangle& rectangle = layout.panels[index];
        panel.moveTo(rectangle);
        panel.layOut();
        if (panel.command() == awaited_) {
            column_->bringIntoView({rectangle.top, rectangle.height});
        }
    }
    awaited_.reset();
}

}  // namespace calquo
