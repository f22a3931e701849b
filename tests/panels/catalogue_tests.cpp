// The panels as a whole: what every button must have, and the rows that are made from strings of keys.
#include "panels/catalogue.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace calquo {
namespace {

TEST(Catalogue, FindsThePanelsOfTheMenuAndNoOthers) {
    for (const PanelEntry& panel : panelCatalogue()) {
        EXPECT_EQ(findPanel(panel.identifier), &panel);
    }
    EXPECT_EQ(findPanel(0xA012), nullptr);
    EXPECT_EQ(findPanel(0x9011), nullptr);
    EXPECT_TRUE(captionPanel(0xA010).empty());
}

TEST(Catalogue, EveryButtonShowsAndTellsSomething) {
    for (const PanelEntry& panel : panelCatalogue()) {
        for (const PanelRow& row : panel.rows) {
            EXPECT_FALSE(row.empty()) << panel.menuLabel;
            for (const PanelButton& button : row) {
                SCOPED_TRACE(std::string(panel.menuLabel) + ": " + std::string(button.label));
                EXPECT_NE(button.label.empty(), button.symbol == Symbol::None);
                const bool isDigit = button.label.size() == 1 && panel.group == PanelGroup::Keypads &&
                                     (std::isdigit(button.label.front()) || std::isupper(button.label.front()));
                EXPECT_EQ(button.description.empty(), isDigit);
            }
        }
    }
}

struct KeyRow {
    std::uint16_t panel;
    std::size_t row;
    std::vector<std::string_view> labels;
    std::string_view described;  ///< the tooltip of the last button
};

TEST(Catalogue, RowsOfKeysBecomeButtons) {
    const KeyRow rows[] = {
        {0xA110, 3, {"0", ".", "e", "^", "%", ""}, "Enter (evaluate)"},
        {0xA112, 0, {"C", "D", "E", "F", "+", "-"}, "Subtraction operator"},
        {0xA114, 0, {"+", "-", "*", "/", "^", "**"}, "Alternate power operator"},
        {0xA114, 2, {"(", ")", "e", "@", "->", ""}, "Space"},
    };
    for (const KeyRow& row : rows) {
        const PanelRow buttons = findPanel(row.panel)->rows[row.row];
        std::vector<std::string_view> labels;
        for (const PanelButton& button : buttons) {
            labels.push_back(button.label);
        }
        EXPECT_EQ(labels, row.labels);
        EXPECT_EQ(buttons.back().description, row.described);
    }
}

}  // namespace
}  // namespace calquo
