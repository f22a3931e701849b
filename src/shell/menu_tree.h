// The main menu as a tree of entries, before any window exists.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace calquo {

enum class MenuKind : std::uint8_t { Command, Check, Radio, Separator, Submenu };

/// One entry. A label has its mnemonic after "&" and the text of its shortcut after a tab.
struct MenuEntry {
    MenuKind kind = MenuKind::Separator;
    std::string_view label;             ///< Empty for a separator.
    std::uint16_t identifier = 0;       ///< 0 for a separator and a submenu.
    std::vector<MenuEntry> children{};  ///< Of a submenu alone.
};

/// The indices in the main menu of the submenus that have buttons of their own in the caption strip.
inline constexpr std::size_t buttonsSubmenu = 1;
inline constexpr std::size_t helpSubmenu = 3;

/// The entries of the main menu, in their order. The labels live as long as the program.
std::vector<MenuEntry> mainMenu();

}  // namespace calquo
