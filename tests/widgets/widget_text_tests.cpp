// The two halves of a widget's stored text.
#include "widgets/widget_text.h"

#include <gtest/gtest.h>

namespace calquo {
namespace {

TEST(WidgetText, IsALabelAndADescription) {
    struct Row {
        std::string_view stored, label, description;
    };
    const Row rows[] = {
        {"sqrt|Square root", "sqrt", "Square root"},
        {"|Space", "", "Space"},
        {"7|", "7", ""},
        {"Close", "Close", ""},
        {"", "", ""},
        {"a|b|c", "a", "b|c"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(labelOf(row.stored), row.label);
        EXPECT_EQ(descriptionOf(row.stored), row.description);
    }
    EXPECT_EQ(storedText("sqrt", "Square root"), rows[0].stored);
}

}  // namespace
}  // namespace calquo
