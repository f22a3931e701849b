// The marks that the menu's entries get from the settings.
#include "shell/menu_marks.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "panels/catalogue.h"
#include "shell/menu_tree.h"
#include "support/memory_storage.h"

namespace calquo {
namespace {

/// The identifiers of the marked entries, in the order of the menu.
std::string markedEntries(const std::vector<MenuEntry>& entries, const Settings& settings) {
    std::ostringstream text;
    text << std::hex << std::uppercase;
    for (const MenuEntry& entry : entries) {
        if (isMarked(entry.identifier, settings)) {
            text << entry.identifier << ' ';
        }
        text << markedEntries(entry.children, settings);
    }
    return text.str();
}

TEST(MenuMarks, ShowTheSettings) {
    struct Row {
        std::uint32_t flags;
        std::uint32_t format;
        SettingBlock panels;
        std::string_view marked;
    };
    const Row rows[] = {
        {0, 0, {}, "511 "},          {0x10, 1, {}, "142 512 "},
        {0x20, 6, {}, "143 517 "},   {0x80, 7, {}, "8010 511 "},
        {0x100, 0, {}, "8031 511 "}, {0x200, 0, {}, "8032 511 "},
        {0x400, 0, {}, "8033 511 "}, {0x700, 0, {}, "8031 511 "},
        {0xFFFFF84F, 0, {}, "511 "}, {0, 0, {0xF0, 0xA5, 0, 0, 0x10, 0xA0, 0, 0, 0x11, 0x90, 0, 0}, "A010 A5F0 511 "},
    };
    for (const Row& row : rows) {
        MemoryStorage storage;
        storage.values = {{L"Flags", row.flags}, {L"Selected format", row.format}, {L"Selected Panels", row.panels}};
        Settings settings(storage);
        settings.loadAll();
        EXPECT_EQ(markedEntries(mainMenu(), settings), row.marked) << "row " << &row - rows;
    }
}

TEST(MenuMarks, TheCheckEntriesAreOptionsAnglesOrPanels) {
    const std::function<void(const std::vector<MenuEntry>&)> visit = [&](const std::vector<MenuEntry>& entries) {
        for (const MenuEntry& entry : entries) {
            const bool isOption = booleanSettingOf(entry.identifier).has_value();
            const bool isAngle = angleOptionOf(entry.identifier) != AngleOption::None;
            const bool isPanel = findPanel(entry.identifier) != nullptr;
            EXPECT_EQ(isOption + isAngle + isPanel, entry.kind == MenuKind::Check) << entry.label;
            visit(entry.children);
        }
    };
    visit(mainMenu());
}

}  // namespace
}  // namespace calquo
