// The main menu on the screen. Its check marks are the state of the options and of the open panels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

class MainMenu {
public:
    MainMenu();

    bool isChecked(std::uint16_t identifier) const;
    void setChecked(std::uint16_t identifier, bool on);
    /// Checks, of the entries that can be checked, those for which `isOn` answers true, and clears the others.
    void showMarks(const std::function<bool(std::uint16_t)>& isOn);

    /// Shows the whole menu with its top left corner at `corner`, a point of the screen, until the user has chosen or
    /// dismissed it; the choice is posted to `owner` as its command. Alt+F4 closes the owner from here as well.
    void open(WindowHandle owner, Point corner) const;
    /// Shows one of its submenus by its index in the menu.
    void openSubmenu(std::size_t index, WindowHandle owner, Point corner) const;

private:
    MenuOwner menu_;
};

}  // namespace calquo
