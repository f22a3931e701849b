// Where a dialog and its parts stand, worked out from sizes alone, on screens of every resolution.
#include "dialogs/form_layout.h"

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

bool apart(const Rectangle& one, const Rectangle& other) {
    return one.left + one.width <= other.left || other.left + other.width <= one.left ||
           one.top + one.height <= other.top || other.top + other.height <= one.top;
}

TEST(FormLayout, KeepsEverythingApartAndWithinItsMargins) {
    for (const int dots : {96, 120, 144, 192, 288}) {
        SCOPED_TRACE(dots);
        const FormLayout layout = layOutForm(partsAt(dots), scaledToScreen(30, dots));
        std::vector<Rectangle> places = {layout.message};
        for (const auto& part : {layout.controls, layout.labels, layout.buttons}) {
            places.insert(places.end(), part.begin(), part.end());
        }
        std::erase(places, Rectangle{});
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

TEST(DialogRectangle, IsInTheMiddleOfItsWindowAndOnTheScreen) {
    constexpr Rectangle usableArea{100, 40, 1000, 800};
    const std::pair<Rectangle, Point> rows[] = {
        {{300, 200, 500, 400}, {400, 300}},  {{301, 201, 500, 400}, {401, 301}}, {{500, 300, 20, 10}, {360, 205}},
        {{-500, -300, 300, 200}, {100, 40}}, {{900, 700, 500, 400}, {800, 640}}, {{0, 3000, 0, 0}, {100, 640}},
    };
    for (const auto& [around, corner] : rows) {
        EXPECT_EQ(dialogRectangle({300, 200}, around, usableArea), (Rectangle{corner.left, corner.top, 300, 200}))
            << around.left;
    }
    // What is larger than the screen begins in its corner.
    EXPECT_EQ(dialogRectangle({1001, 900}, {300, 200, 500, 400}, usableArea), (Rectangle{100, 40, 1001, 900}));
}

}  // namespace
}  // namespace calquo
