// Places on a dialog and of a dialog, worked out from sizes alone.
#include "widgets/form_layout.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace calquo {
namespace {

/// A dialog with two labelled rows, a lone one and two buttons, at one resolution.
FormParts partsAt(int dotsPerInch) {
    const auto scaled = [&](int width, int height) {
        return Size{scaledToScreen(width, dotsPerInch), scaledToScreen(height, dotsPerInch)};
    };
    return {{{scaled(150, 13), scaled(47, 21)}, {scaled(90, 13), scaled(80, 24)}, {{}, scaled(190, 17)}},
            {scaled(80, 25), scaled(90, 25)},
            dotsPerInch};
}

std::vector<Rectangle> everyPlace(const FormLayout& layout) {
    std::vector<Rectangle> places = layout.controls;
    places.insert(places.end(), layout.labels.begin(), layout.labels.end());
    places.insert(places.end(), layout.buttons.begin(), layout.buttons.end());
    places.push_back(layout.message);
    std::erase(places, Rectangle{});
    return places;
}

bool apart(const Rectangle& one, const Rectangle& other) {
    return one.left + one.width <= other.left || other.left + other.width <= one.left ||
           one.top + one.height <= other.top || other.top + other.height <= one.top;
}

TEST(FormLayout, KeepsEverythingApartAndWithinItsMargins) {
    for (const int dots : {96, 120, 144, 192, 288}) {
        SCOPED_TRACE(dots);
        const FormLayout layout = layOutForm(partsAt(dots), scaledToScreen(30, dots));
        const auto places = everyPlace(layout);
        ASSERT_EQ(places.size(), 8u);
        int left = layout.client.width, top = layout.client.height, right = 0, bottom = 0;
        for (auto place = places.begin(); place != places.end(); ++place) {
            EXPECT_TRUE(std::all_of(place + 1, places.end(), [&](const auto& other) { return apart(*place, other); }));
            left = std::min(left, place->left);
            top = std::min(top, place->top);
            right = std::max(right, place->left + place->width);
            bottom = std::max(bottom, place->top + place->height);
        }
        EXPECT_GE(left, scaledToScreen(10, dots));
        EXPECT_EQ(top, left);
        EXPECT_EQ(layout.client.width - right, left);
        EXPECT_EQ(layout.client.height - bottom, left);
    }
}

TEST(FormLayout, AlignsColumnsRowsAndButtons) {
    const FormParts parts = partsAt(96);
    const FormLayout layout = layOutForm(parts, 30);
    const int rightEdge = layout.message.left + layout.message.width;
    EXPECT_EQ(layout.message.width, formWidth(parts));
    for (const std::size_t row : {0u, 1u}) {
        const Rectangle& label = layout.labels[row];
        const Rectangle& control = layout.controls[row];
        EXPECT_EQ(control.left + control.width, rightEdge);
        EXPECT_EQ(control.width, 80);
        EXPECT_LE(std::abs((2 * label.top + label.height) - (2 * control.top + control.height)), 1);
    }
    EXPECT_EQ(layout.controls[2].left, layout.labels[0].left);
    EXPECT_EQ(layout.controls[2].width, 190);
    EXPECT_EQ(layout.buttons[1].left + layout.buttons[1].width, rightEdge);
    EXPECT_EQ(layout.buttons[0].width, 90);
    EXPECT_EQ(layout.buttons[0].top, layout.buttons[1].top);
}

TEST(FormLayout, IsAsWideAsItsWidestPartNeeds) {
    const FormRow labelled{{150, 13}, {50, 21}};
    const std::vector<Size> buttons = {{80, 25}, {80, 25}};
    const int columns = formWidth({{labelled}, buttons});
    EXPECT_GT(columns, 200);
    EXPECT_EQ(formWidth({{labelled, {{}, {500, 17}}}, buttons}), 500);
    EXPECT_EQ(formWidth({{labelled}, {{300, 25}, {10, 25}}}) - 600, formWidth({{}, {{90, 25}, {90, 25}}}) - 180);
}

TEST(CentredPlace, StaysOnTheScreen) {
    struct Row {
        Size size;
        Rectangle around;
        Rectangle expected;
    };
    constexpr Rectangle screen{100, 50, 1000, 600};
    const Row rows[] = {
        {{200, 100}, {300, 200, 400, 300}, {400, 300, 200, 100}},
        {{200, 100}, {-500, -500, 100, 100}, {100, 50, 200, 100}},
        {{200, 100}, {1050, 600, 400, 300}, {900, 550, 200, 100}},
        {{400, 300}, {500, 300, 100, 100}, {350, 200, 400, 300}},
        // Larger than the screen: its caption stays in reach.
        {{1200, 700}, {300, 200, 400, 300}, {100, 50, 1200, 700}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(centredPlace(row.size, row.around, screen), row.expected) << row.around.left;
    }
}

}  // namespace
}  // namespace calquo
