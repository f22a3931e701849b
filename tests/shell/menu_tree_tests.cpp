// The menu tree: what stands where, and the rules that labels and identifiers keep.
#include "shell/menu_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "engine/characters.h"
#include "panels/catalogue.h"
#include "shell/command_ids.h"

namespace calquo {
namespace {

/// The character behind "&" in lower case; a blank when there is none.
char mnemonicOf(std::string_view label) {
    const std::size_t mark = label.find('&');
    return mark == std::string_view::npos ? ' ' : lowerCase(characterAt(label, mark + 1));
}

/// A menu in one line: for each entry its mnemonic with its identifier, which has "*" behind it for a check mark and
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

TEST(MenuTree, MnemonicsAreUniqueInEachMenu) {
    forEachMenu(mainMenu(), [](const std::vector<MenuEntry>& entries) {
        std::set<char> seen;
        for (const MenuEntry& entry : entries) {
            const char mnemonic = mnemonicOf(entry.label);
            const bool needsNone =
                entry.kind == MenuKind::Separator || entry.identifier == identifierOf(Command::ResetFormats);
            EXPECT_EQ(mnemonic == ' ', needsNone) << entry.label;
            EXPECT_TRUE(mnemonic == ' ' || seen.insert(mnemonic).second) << entry.label;
        }
    });
}

TEST(MenuTree, TheEntriesOfTheMainMenuNameTheirKeys) {
    for (const MenuEntry& entry : mainMenu()) {
        if (entry.kind != MenuKind::Separator) {
            const std::string key = {static_cast<char>(mnemonicOf(entry.label) - 'a' + 'A')};
            EXPECT_EQ(entry.label.substr(entry.label.find('\t') + 1), "Alt+" + key);
        }
    }
}

TEST(MenuTree, IdentifiersAreUniqueAndEveryPanelIsThere) {
    std::map<std::uint16_t, std::string_view> labels;
    forEachMenu(mainMenu(), [&](const std::vector<MenuEntry>& entries) {
        for (const MenuEntry& entry : entries) {
            const bool isChosen = entry.kind != MenuKind::Separator && entry.kind != MenuKind::Submenu;
            EXPECT_EQ(entry.identifier != 0, isChosen) << entry.label;
            EXPECT_EQ(!entry.children.empty(), entry.kind == MenuKind::Submenu) << entry.label;
            EXPECT_TRUE(!isChosen || labels.emplace(entry.identifier, entry.label).second) << entry.label;
        }
    });
    std::size_t panels = 0;
    for (const auto& [identifier, label] : labels) {
        panels += panelCommands.contains(identifier);
    }
    EXPECT_EQ(panels, panelCatalogue().size());
    for (const PanelEntry& panel : panelCatalogue()) {
        EXPECT_EQ(labels[panel.identifier], panel.menuLabel);
    }
}

TEST(MenuTree, ThePanelsOfAGroupStandInTheOrderOfTheirIdentifiers) {
    for (const MenuEntry& group : menuAt("b")) {
        std::uint16_t last = 0;
        for (const MenuEntry& entry : group.children) {
            if (panelCommands.contains(entry.identifier)) {
                EXPECT_LT(last, entry.identifier) << entry.label;
                last = entry.identifier;
            }
        }
    }
}

TEST(MenuTree, BothFormatMenusHaveTheSameLabels) {
    const std::vector<MenuEntry> select = menuAt("o"), modify = menuAt("om");
    ASSERT_EQ(modify.size(), formatKinds.size());
    for (std::size_t kind = 0; kind < modify.size(); ++kind) {
        EXPECT_EQ(select[kind].label, modify[kind].label);
        EXPECT_EQ(formatOf(modifyFormatCommands, modify[kind].identifier), static_cast<FormatKind>(kind));
        EXPECT_EQ(formatOf(selectFormatCommands, select[kind].identifier), static_cast<FormatKind>(kind));
    }
}

TEST(MenuTree, AngleEntriesQuoteTheirUnit) {
    std::string labels;
    for (const MenuEntry& entry : menuAt("bt")) {
        if (entry.label.find('"') != std::string_view::npos) {
            labels += std::string(entry.label) + '\n';
        }
    }
    EXPECT_EQ(labels, "Buttons add \"&deg\"\nButtons add \"&grad\"\nButtons add \"&rad\" (basic unit)\n");
}

}  // namespace
}  // namespace calquo
