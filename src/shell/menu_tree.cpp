// The menus as tables. The panels come from their catalogue.
#include "shell/menu_tree.h"

#include <utility>

#include "format/numeric_format.h"
#include "panels/catalogue.h"
#include "shell/command_ids.h"

namespace calquo {
namespace {

using Entries = std::vector<MenuEntry>;

MenuEntry command(std::string_view label, Command identifier) {
    return {MenuKind::Command, label, identifierOf(identifier)};
}

MenuEntry check(std::string_view label, Command identifier) {
    return {MenuKind::Check, label, identifierOf(identifier)};
}

MenuEntry separator() { return {}; }

MenuEntry submenu(std::string_view label, Entries children) {
    return {MenuKind::Submenu, label, 0, std::move(children)};
}

Entries fileMenu() {
    return {
        command("&Clear", Command::ClearWorkArea),
        separator(),
        command("Select &Default Work Area File", Command::SelectDefaultFile),
        command("&Read Default File", Command::ReadDefaultFile),
        command("&Save Default File", Command::SaveDefaultFile),
        separator(),
        check("Read Default at S&tartup", Command::ReadDefaultAtStartup),
        check("Save Default at E&xit", Command::SaveDefaultAtExit),
        separator(),
        command("Read &From File", Command::ReadFromFile),
        command("Save &As File", Command::SaveAsFile),
    };
}

Entries panelsOf(PanelGroup group) {
    Entries entries;
    for (const PanelEntry& panel : panelCatalogue()) {
        if (panel.group == group) {
            entries.push_back({MenuKind::Check, panel.menuLabel, panel.identifier});
        }
    }
    return entries;
}

Entries buttonsMenu() {
    Entries entries = {check("&Hide buttons", Command::HideButtons), separator()};
    for (std::size_t index = 0; index < panelGroupLabels.size(); ++index) {
        const auto group = static_cast<PanelGroup>(index);
        entries.push_back(submenu(labelOf(group), panelsOf(group)));
        if (group == PanelGroup::Trigonometric) {
            Entries& children = entries.back().children;
            children.push_back(separator());
            for (const AngleRow& row : angleRows) {
                children.push_back({MenuKind::Check, row.label, row.command});
            }
        }
    }
    return entries;
}

/// An entry for each format, with the identifiers of a range.
Entries formatEntries(MenuKind kind, CommandRange range) {
    Entries entries;
    std::uint16_t identifier = range.first;
    for (const FormatKindRow& row : formatKinds) {
        entries.push_back({kind, row.menuLabel, identifier});
        ++identifier;
    }
    return entries;
}

Entries outputFormatMenu() {
    Entries entries = formatEntries(MenuKind::Radio, selectFormatCommands);
    entries.push_back(separator());
    entries.push_back(submenu("&Modify output formats", formatEntries(MenuKind::Command, modifyFormatCommands)));
    entries.push_back(separator());
    entries.push_back(command("Reset all formats to default values", Command::ResetFormats));
    return entries;
}

Entries helpMenu() {
    return {
        command("&Help\tF1", Command::HelpContents),
        separator(),
        command("&About", Command::About),
    };
}

}  // namespace

std::vector<MenuEntry> mainMenu() {
    return {
        submenu("&File\tAlt+F", fileMenu()),
        submenu("&Buttons\tAlt+B", buttonsMenu()),
        submenu("&Output format\tAlt+O", outputFormatMenu()),
        submenu("&Help\tAlt+H", helpMenu()),
        separator(),
        command("E&xit\tAlt+X", Command::Exit),
    };
}

}  // namespace calquo
