// A widget's stored text: the label before the bar, the description after it.
#include "widgets/widget_text.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

TEST(WidgetText, IsALabelAndADescriptionAndWhatIsSaidOfBoth) {
    struct Row {
        std::string_view stored, label, description, spoken, spokenOfSymbol;
    };
    const Row rows[] = {
        {"sqrt|Square root", "sqrt", "Square root", "sqrt, Square root", "Square root"},
        {"m2|Square metre", "m2", "Square metre", "m2, Square metre", "Square metre"},
        {"C|Close the window", "C", "Close the window", "C, Close the window", "Close the window"},
        {"+|Addition operator", "+", "Addition operator", "Addition operator", "Addition operator"},
        {"2'|Base 2 prefix", "2'", "Base 2 prefix", "Base 2 prefix", "Base 2 prefix"},
        {"|Space", "", "Space", "Space", "Space"},
        {"7|", "7", "", "", ""},
        {"Close", "Close", "", "", ""},
        {"", "", "", "", ""},
        {"a|b|c", "a", "b|c", "a, b|c", "b|c"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(labelOf(row.stored), row.label);
        EXPECT_EQ(descriptionOf(row.stored), row.description);
        EXPECT_EQ(spokenNameOf(row.stored, true), row.spoken);
        EXPECT_EQ(spokenNameOf(row.stored, false), row.spokenOfSymbol);
    }
    EXPECT_EQ(storedText("sqrt", "Square root"), rows[0].stored);
}

}  // namespace
}  // namespace calquo
