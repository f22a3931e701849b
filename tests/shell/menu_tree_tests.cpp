// The menu tree: where each entry stands, and the rules that labels and identifiers keep.
#include "shell/menu_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "engine/characters.h"
#include "panels/catalogue.h"
#include "shell/command_ids.h"
#include "shell/menu_marks.h"
#include "support/memory_storage.h"

namespace calquo {
namespace {

/// The character after "&" in lower case; a blank when there is none.
char mnemonicOf(std::string_view label) {
    const std::size_t mark = label.find('&');
    return mark == std::string_view::npos ? ' ' : lowerCase(characterAt(label, mark + 1));
}

/// A menu in one line: for each entry its mnemonic with its identifier, and after that "*" for a check mark and
/// "o" for a radio mark; "-" for a separator, ">" for a submenu.
std::string picture(const std::vector<MenuEntry>& entries) {
    const std::map<MenuKind, std::string_view> marks = {
        {MenuKind::Command, ""}, {MenuKind::Check, "*"}, {MenuKind::Radio, "o"}};
    std::ostringstream text;
    text << std::hex << std::uppercase;
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuKind::Separator) {
            text << "- ";
        } else if (entry.kind == MenuKind::Submenu) {
            text << mnemonicOf(entry.label) << "> ";
        } else {
            text << mnemonicOf(entry.label) << entry.identifier << marks.at(entry.kind) << ' ';
        }
    }
    return text.str();
}

/// The submenu that the mnemonics of a path lead to.
std::vector<MenuEntry> menuAt(std::string_view path) {
    std::vector<MenuEntry> menu = mainMenu();
    for (const char mnemonic : path) {
        const auto entry = std::ranges::find(menu, mnemonic, [](const MenuEntry& e) { return mnemonicOf(e.label); });
        if (entry == menu.end()) {
            ADD_FAILURE() << "no submenu " << path;
            return {};
        }
        menu = std::vector(entry->children);  // copied first, as the entry lives in the menu
    }
    return menu;
}

/// Calls `visit` with the entries of every menu of the tree, the main menu first.
template <typename Visit>
void forEachMenu(const std::vector<MenuEntry>& entries, const Visit& visit) {
    visit(entries);
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuKind::Submenu) {
            forEachMenu(entry.children, visit);
        }
    }
}

TEST(MenuTree, EachMenuHasItsEntriesInOrder) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"", "f> b> o> h> - x7FFF "},
        {"f", "c120 - d144 r140 s141 - t142* x143* - f160 a161 "},
        {"b", "h8010* - b> k> f> m> s> t> u> "},
        {"bk", "bA110* eA111* hA112* nA113* oA114* 3A115* "},
        {"bt", "tA010* iA011* hA020* nA021* - d8031* g8032* r8033* "},
        {"o", "a511o s512o f513o c514o i515o r516o t517o - m> -  541 "},
        {"om", "a4511 s4512 f4513 c4514 i4515 r4516 t4517 "},
        {"h", "hA20 - aA60 "},
    };
    for (const auto& [path, expected] : rows) {
        EXPECT_EQ(picture(menuAt(path)), expected) << path;
    }
}

TEST(MenuTree, EntriesHaveKeysAndCommandsOfTheirOwn) {
    std::map<std::uint16_t, std::string_view> labels;
    forEachMenu(mainMenu(), [&](const std::vector<MenuEntry>& entries) {
        std::set<char> keys;
        for (const MenuEntry& entry : entries) {
            const char key = mnemonicOf(entry.label);
            const bool needsNone =
                entry.kind == MenuKind::Separator || entry.identifier == identifierOf(Command::ResetFormats);
            EXPECT_TRUE(needsNone ? key == ' ' : key != ' ' && keys.insert(key).second) << entry.label;
            const bool isChosen = entry.kind != MenuKind::Separator && entry.kind != MenuKind::Submenu;
            EXPECT_TRUE(!isChosen || labels.emplace(entry.identifier, entry.label).second) << entry.label;
            // A check mark is that of an option, of an angle or of a panel.
            EXPECT_EQ(booleanSettingOf(entry.identifier).has_value() +
                          (angleOptionOf(entry.identifier) != AngleOption::None) +
                          (findPanel(entry.identifier) != nullptr),
                      entry.kind == MenuKind::Check)
                << entry.label;
        }
    });
    for (const PanelEntry& panel : panelCatalogue()) {
        EXPECT_EQ(labels[panel.identifier], panel.menuLabel);
    }
}

TEST(MenuTree, MarksShowTheSettings) {
    struct Row {
        std::uint32_t flags, format;
        SettingBlock panels;
        std::string_view marked;
    };
    const Row rows[] = {{0x110, 1, {}, "142 8031 512 "},
                        {0x220, 6, {}, "143 8032 517 "},
                        {0x480, 7, {}, "8010 8033 511 "},
                        {0xFFFFFF4F, 0, {}, "8031 511 "},
                        {0, 0, {0xF0, 0xA5, 0, 0, 0x10, 0xA0, 0, 0}, "A010 A5F0 511 "}};
    for (const Row& row : rows) {
        MemoryStorage storage;
        storage.values = {{L"Flags", row.flags}, {L"Selected format", row.format}, {L"Selected Panels", row.panels}};
        Settings settings(storage);
        settings.loadAll();
        std::ostringstream marked;
        forEachMenu(mainMenu(), [&](const std::vector<MenuEntry>& entries) {
            for (const MenuEntry& entry : entries) {
                if (isCheckedUnder(settings, entry.identifier)) {
                    marked << std::hex << std::uppercase << entry.identifier << ' ';
                }
            }
        });
        EXPECT_EQ(marked.str(), row.marked);
    }
}

}  // namespace
}  // namespace calquo
