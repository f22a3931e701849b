// The context menu, the keys and what the help says of them.
#include "shell/sheet_commands.h"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <sstream>

#include "engine/keywords.h"
#include "shell/help_topic.h"

namespace calquo {
namespace {

std::string helpPage(const std::string& name) {
    std::ifstream file(CALQUO_HELP_PAGES "/" + name);
    return (std::ostringstream() << file.rdbuf()).str();
}

std::string drawn(const SheetState& state) {
    std::string menu;
    for (const ContextMenuEntry& entry : contextMenu(state)) {
        menu +=
            entry.label.empty() ? "--" : (entry.isEnabled ? "" : "!") + entry.label.substr(0, entry.label.find('\t'));
        menu += ' ';
    }
    std::erase(menu, '&');
    return menu;
}

TEST(SheetCommands, TheMenuOffersWhatCanBeDone) {
    EXPECT_EQ(drawn({}),
              "!Undo !Redo -- !Cut !Copy !Copy Result !Copy Result in Full !Paste !Delete !Select All -- !Evaluate "
              "!Evaluate All !Sum -- Details Complete Name -- Bring Back Last Sheet ");
    EXPECT_EQ(drawn({.isEmpty = false,
                     .hasSelection = true,
                     .lineHasResult = true,
                     .lineIsEmpty = false,
                     .canUndo = true,
                     .canRedo = true,
                     .canPaste = true,
                     .name = "sqrt"}),
              "Undo Redo -- Cut Copy Copy Result Copy Result in Full Paste Delete Select All -- Evaluate "
              "Evaluate All Sum -- Details Complete Name -- Help on sqrt Bring Back Last Sheet ");
}

TEST(SheetCommands, EachHasAKeyOrALetterOfItsOwn) {
    std::set<std::string> keys;
    std::set<int> letters;
    for (const SheetCommand& row : sheetCommands()) {
        const std::string keyNames = keyText(row.stroke);
        EXPECT_TRUE(keyNames.empty() || keys.insert(keyNames).second) << keyNames;
        EXPECT_EQ(keyNames.empty(), row.explanation.empty()) << row.label;
        if (!row.label.empty()) {
            const std::size_t mark = row.label.find('&');
            ASSERT_LT(mark, row.label.size() - 1) << row.label;
            EXPECT_TRUE(letters.insert(std::tolower(row.label[mark + 1])).second) << row.label;
        }
    }
    EXPECT_EQ(keyText({key::enter, Modifiers::Some}), "Shift+Enter, Ctrl+Enter");
    EXPECT_EQ(keyText({'C', Modifiers::ControlShift}), "Ctrl+Shift+C");
}

TEST(SheetCommands, TheHelpListsEveryKey) {
    const std::string page = helpPage("keyboard.html");
    for (const SheetCommand& row : sheetCommands()) {
        const std::string keys = keyText(row.stroke);
        EXPECT_TRUE(keys.empty() || page.find("<strong>" + keys + "</strong>") != std::string::npos) << keys;
    }
}

TEST(SheetCommands, TheHelpHasATopicForEachName) {
    for (std::size_t name = 1; name <= keywordCount(); ++name) {
        const std::string topic = helpTopicOf(nameOf(name));
        const std::size_t mark = topic.find('#');
        EXPECT_NE(helpPage(topic.substr(0, mark)).find("id=\"" + topic.substr(mark + 1) + "\""), std::string::npos)
            << topic;
    }
}

}  // namespace
}  // namespace calquo
