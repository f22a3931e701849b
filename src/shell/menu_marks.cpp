// The entries with marks and their settings, as tables.
#include "shell/menu_marks.h"

#include <algorithm>
#include <iterator>

#include "shell/command_ids.h"

namespace calquo {
namespace {

struct Row {
    Command command;
    BooleanSetting setting;
};

constexpr Row booleanRows[] = {
    {Command::ReadDefaultAtStartup, BooleanSetting::ReadDefaultAtStartup},
    {Command::SaveDefaultAtExit, BooleanSetting::SaveDefaultAtExit},
    {Command::HideButtons, BooleanSetting::HideButtons},
};

}  // namespace

std::optional<BooleanSetting> booleanSettingOf(std::uint16_t identifier) {
    const auto* const row = std::ranges::find(booleanRows, static_cast<Command>(identifier), &Row::command);
    return row == std::end(booleanRows) ? std::nullopt : std::optional(row->setting);
}

AngleOption angleOptionOf(std::uint16_t identifier) {
    const auto* const row = std::ranges::find(angleRows, identifier, &AngleRow::command);
    return row == angleRows.end() ? AngleOption::None : row->option;
}

bool isCheckedUnder(const Settings& settings, std::uint16_t identifier) {
    if (selectFormatCommands.contains(identifier)) {
        return settings.selectedFormat() == formatOf(selectFormatCommands, identifier);
    }
    if (const auto option = booleanSettingOf(identifier)) {
        return settings.boolean(*option);
    }
    if (const AngleOption angle = angleOptionOf(identifier); angle != AngleOption::None) {
        return settings.angleOption() == angle;
    }
    const std::vector<std::uint16_t> panels = settings.selectedPanels();
    return std::ranges::find(panels, identifier) != panels.end();
}

}  // namespace calquo
