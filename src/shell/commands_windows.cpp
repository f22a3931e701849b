// The table that finds a command by its identifier, and what each command does.
#include "shell/commands.h"

#include <algorithm>

#include "shell/command_ids.h"
#include "shell/file_messages.h"
#include "shell/help.h"
#include "shell/help_topic.h"
#include "shell/menu_marks.h"
#include "widgets/windows_api.h"

namespace calquo {

/// What a command does; it is given its identifier.
struct Commands::Row {
    CommandRange range;
    void (Commands::*act)(std::uint16_t);

    constexpr Row(CommandRange commands, void (Commands::*action)(std::uint16_t)) : range(commands), act(action) {}
    constexpr Row(Command command, void (Commands::*action)(std::uint16_t))
        : Row(CommandRange{identifierOf(command), identifierOf(command)}, action) {}
};

const Commands::Row Commands::rows[] = {
    {panelCommands, &Commands::togglePanel},
    {Command::ClearWorkArea, &Commands::clearWorkArea},
    {Command::BringBackWorkArea, &Commands::bringBackWorkArea},
    {evaluationCommands, &Commands::actOnSheet},
    {editingCommands, &Commands::actOnSheet},
    {Command::HelpOnName, &Commands::openHelpOnName},
    {Command::ReadDefaultFile, &Commands::readDefaultFile},
    {Command::SaveDefaultFile, &Commands::saveDefaultFile},
    {Command::SaveAgain, &Commands::saveAgain},
    {Command::SelectDefaultFile, &Commands::chooseFile},
    {Command::ReadFromFile, &Commands::chooseFile},
    {Command::SaveAsFile, &Commands::chooseFile},
    {Command::ShowDetails, &Commands::showDetails},
    {Command::CompleteName, &Commands::completeName},
    {Command::ReadDefaultAtStartup, &Commands::toggleOption},
    {Command::SaveDefaultAtExit, &Commands::toggleOption},
    {selectFormatCommands, &Commands::selectFormat},
    {modifyFormatCommands, &Commands::modifyFormat},
    {Command::ResetFormats, &Commands::resetFormats},
    {Command::HelpContents, &Commands::openHelp},
    {Command::About, &Commands::showAbout},
    {Command::Exit, &Commands::exit},
    {Command::HideButtons, &Commands::toggleHiddenButtons},
    {angleCommands, &Commands::toggleAngle},
};

Commands::Commands(CommandTargets targets)
    : targets_(std::move(targets)), sheet_(targets_.workArea, targets_.dialogs, [&settings = targets_.settings] {
          return settings.format(settings.selectedFormat());
      }) {}

const Commands::Row* Commands::rowOf(std::uint16_t identifier) {
    const Row* const row =
        std::ranges::find_if(rows, [&](const Row& candidate) { return candidate.range.contains(identifier); });
    return row == std::end(rows) ? nullptr : row;
}

void Commands::run(std::uint16_t identifier) {
    if (const Row* const row = rowOf(identifier)) {
        (this->*row->act)(identifier);
    }
}

bool Commands::isOpenDialog(WindowHandle window) const {
    return window != nullptr && (window == formatDialog_.handle() || window == about_.handle());
}

// --- Panels and options ---------------------------------------------------------------------------------------------

void Commands::togglePanel(std::uint16_t identifier) {
    const bool open = !targets_.menu.isChecked(identifier);
    if (open) {
        targets_.panels.open(targets_.window, identifier);
        targets_.panels.bringIntoView(identifier);
    } else {
        targets_.panels.close(identifier);
    }
    targets_.settings.setSelectedPanels(targets_.panels.identifiers());
    targets_.menu.setChecked(identifier, open);
    targets_.layOut();
}

void Commands::toggleOption(std::uint16_t identifier) {
    const bool on = !targets_.menu.isChecked(identifier);
    targets_.menu.setChecked(identifier, on);
    if (const auto setting = booleanSettingOf(identifier)) {
        targets_.settings.setBoolean(*setting, on);
    }
}

void Commands::toggleHiddenButtons(std::uint16_t identifier) {
    toggleOption(identifier);
    targets_.layOut();
}

void Commands::toggleAngle(std::uint16_t identifier) {
    const bool on = !targets_.menu.isChecked(identifier);
    targets_.settings.chooseAngle(on ? angleOptionOf(identifier) : AngleOption::None);
    for (const AngleRow& row : angleRows) {
        targets_.menu.setChecked(row.command, on && row.command == identifier);
    }
}

// --- Work area and files --------------------------------------------------------------------------------------------

void Commands::clearWorkArea(std::uint16_t) {
    targets_.recovery.aroundReplacement([this] { targets_.workArea.clear(); });
}

void Commands::actOnSheet(std::uint16_t identifier) {
    sheet_.run(static_cast<Command>(identifier));
    targets_.recovery.keep();
}

void Commands::bringBackWorkArea(std::uint16_t) {
    if (targets_.recovery.bringBack()) {
        targets_.files.forgetFile();
    } else {
        targets_.dialogs.showHint(noCopyHint);
    }
}

void Commands::readDefaultFile(std::uint16_t) {
    targets_.recovery.aroundReplacement([this] { targets_.files.readDefault(); });
}

void Commands::saveDefaultFile(std::uint16_t) {
    targets_.files.saveDefault();
    targets_.recovery.noteSaved();
}

void Commands::saveAgain(std::uint16_t) {
    targets_.files.saveAgain();
    targets_.recovery.noteSaved();
}

void Commands::chooseFile(std::uint16_t identifier) {
    targets_.recovery.aroundReplacement(
        [this, identifier] { targets_.files.actOnChosenFile(static_cast<Command>(identifier)); });
    targets_.recovery.noteSaved();
}

void Commands::showDetails(std::uint16_t) { targets_.tips.showDetails(); }

void Commands::completeName(std::uint16_t) { targets_.tips.completeName(); }

// --- Formats --------------------------------------------------------------------------------------------------------

void Commands::selectFormat(std::uint16_t identifier) {
    targets_.settings.selectFormat(formatOf(selectFormatCommands, identifier));
    applyToEngine(targets_.settings);
    for (std::uint16_t entry = selectFormatCommands.first; entry <= selectFormatCommands.last; ++entry) {
        targets_.menu.setChecked(entry, entry == identifier);
    }
}

void Commands::modifyFormat(std::uint16_t identifier) {
    const FormatKind kind = formatOf(modifyFormatCommands, identifier);
    Settings& settings = targets_.settings;
    const FormatAccess access{[&settings, kind] { return settings.format(kind); },
                              [&settings, kind](NumericFormat word) {
                                  settings.setFormat(kind, word);
                                  applyToEngine(settings);
                              }};
    targets_.keepFocusIn(formatDialog_.open(targets_.workArea.handle(), access));
}

void Commands::resetFormats(std::uint16_t) {
    targets_.settings.resetFormats();
    applyToEngine(targets_.settings);
}

// --- Help and exit --------------------------------------------------------------------------------------------------

void Commands::showAbout(std::uint16_t) { targets_.keepFocusIn(about_.open(targets_.workArea.handle())); }

void Commands::openHelp(std::uint16_t) { showHelp(targets_.window); }

void Commands::openHelpOnName(std::uint16_t) {
    const std::string_view name = sheet_.state().name;
    if (!name.empty()) {
        showHelp(targets_.window, helpTopicOf(name));
    }
}

void Commands::exit(std::uint16_t) { SendMessageW(targets_.window, WM_CLOSE, 0, 0); }

}  // namespace calquo
