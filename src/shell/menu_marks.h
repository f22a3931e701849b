// Which settings the marks of the main menu's entries show.
#pragma once

#include <cstdint>
#include <optional>

#include "panels/angle_options.h"
#include "shell/settings.h"

namespace calquo {

/// The option that a check entry turns on and off by itself; none for the panels, and for the angles, of which one at
/// most is on.
std::optional<BooleanSetting> booleanSettingOf(std::uint16_t identifier);

/// The angle option that an entry chooses; AngleOption::None for an entry that chooses none.
AngleOption angleOptionOf(std::uint16_t identifier);

/// Whether the entry of an identifier is checked under these settings: the selected format, an option that is on, the
/// angle option, or a selected panel.
bool isCheckedUnder(const Settings& settings, std::uint16_t identifier);

}  // namespace calquo
