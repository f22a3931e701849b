// The entries with marks and their settings, as tables.
#include "shell/menu_marks.h"

#include <algorithm>
#include <iterator>

#include "shell/command_ids.h"

namespace calquo {
namespace {

template <typename Setting>
struct Row {
    Command command;
    Setting setting;
};

constexpr Row<BooleanSetting> booleanRows[] = {
    {Command::ReadDefaultAtStartup, BooleanSetting::ReadDefaultAtStartup},
    {Command::SaveDefaultAtExit, BooleanSetting::SaveDefaultAtExit},
    {Command::HideButtons, BooleanSetting::HideButtons},
};

constexpr Row<AngleOption> angleRows[] = {
    {Command::ButtonsAddDegrees, AngleOption::Degree},
    {Command::ButtonsAddGradients, AngleOption::Gradient},
    {Command::ButtonsAddRadians, AngleOption::Radian},
};

template <typename Rows>
auto settingIn(const Rows& rows, std::uint16_t identifier) {
    const auto row =
        std::ranges::find_if(rows, [&](const auto& entry) { return identifierOf(entry.command) == identifier; });
    return row == std::end(rows) ? std::nullopt : std::optional(row->setting);
}

}  // namespace

std::optional<BooleanSetting> booleanSettingOf(std::uint16_t identifier) { return settingIn(booleanRows, identifier); }

AngleOption angleOptionOf(std::uint16_t identifier) {
    return settingIn(angleRows, identifier).value_or(AngleOption::None);
}

bool isMarked(std::uint16_t identifier, const Settings& settings) {
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
