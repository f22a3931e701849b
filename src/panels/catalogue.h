// The button panels as data: their menu labels, their colours, and their rows of buttons.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "widgets/color.h"
#include "widgets/shape.h"

namespace calquo {

struct PanelButton {
    std::string_view label{};        ///< What stands on its face; empty for a button that shows its symbol.
    std::string_view description{};  ///< Its tooltip; empty for none.
    std::string_view insertion{};    ///< What it inserts: its label, unless the language spells that otherwise.
    Symbol symbol = Symbol::None;
    Color face{};
    int extraHalfWidths = 0;  ///< 0 to 8; its width in half button sizes beyond the first two.
    bool repeats = false;     ///< Acts when it is pressed and while it is held, not when it is released.
};

/// Buttons from left to right.
using PanelRow = std::span<const PanelButton>;

/// The submenus of the Buttons menu, in its order.
enum class PanelGroup : std::uint8_t {
    BitLevel,
    Keypads,
    Financial,
    Mathematics,
    Statistics,
    Trigonometric,
    Units,
};

/// The label of each group's submenu.
inline constexpr std::array<std::string_view, 7> panelGroupLabels = {
    "&Bit-level (binary)",    "&Keypads", "&Financial", "&Mathematics", "&Statistics", "&Trigonometric and Hyperbolic",
    "&Units and conversions",
};

constexpr std::string_view labelOf(PanelGroup group) { return panelGroupLabels[static_cast<std::size_t>(group)]; }

struct PanelEntry {
    std::uint16_t identifier = 0;  ///< Also that of the menu's entry.
    PanelGroup group = PanelGroup::BitLevel;
    std::string_view menuLabel;  ///< With its mnemonic after "&".
    Color face;                  ///< Of its buttons, but for those that have a colour of their own.
    std::span<const PanelRow> rows;
};

/// Every panel of the menu, group by group, each group in the order of its submenu.
std::span<const PanelEntry> panelCatalogue();

/// The panel of an identifier; null when there is none.
const PanelEntry* findPanel(std::uint16_t identifier);

/// Among the keypads, the one whose buttons do more than type.
inline constexpr std::uint16_t numericBasePanel = 0xA113;

}  // namespace calquo
