// What is seen of something higher than its view, and the thumb that shows it.
#include "widgets/scrolled_view.h"

#include <gtest/gtest.h>

#include <functional>

namespace calquo {
namespace {

TEST(ScrolledView, EachStepLeavesItWithinTheContent) {
    struct Row {
        const char* step;
        std::function<void(ScrolledView&)> scroll;
        int offset;
        Stretch thumb;
    };
    // One after the other: 1000 pixels seen through 200 at first.
    const Row rows[] = {
        {"all above",
         [](auto& view) {
             view.fit({1000, 200, 20});
         },
         0,
         {0, 40}},
        {"a notch down", [](auto& view) { view.turnWheel(-120, 60); }, 60, {12, 40}},
        {"half a pixel", [](auto& view) { view.turnWheel(-1, 60); }, 60, {12, 40}},
        {"and another", [](auto& view) { view.turnWheel(-1, 60); }, 61, {12, 40}},
        {"up, past the beginning", [](auto& view) { view.turnWheel(240, 60); }, 0, {0, 40}},
        {"a page down", [](auto& view) { view.page(true, 20); }, 180, {36, 40}},
        {"a page up", [](auto& view) { view.page(false, 20); }, 0, {0, 40}},
        {"what is seen already",
         [](auto& view) {
             view.bringIntoView({100, 100});
         },
         0,
         {0, 40}},
        {"what ends below",
         [](auto& view) {
             view.bringIntoView({150, 100});
         },
         50,
         {10, 40}},
        {"what begins above",
         [](auto& view) {
             view.bringIntoView({10, 100});
         },
         10,
         {2, 40}},
        {"what is higher",
         [](auto& view) {
             view.bringIntoView({300, 201});
         },
         300,
         {60, 40}},
        {"the thumb in the middle", [](auto& view) { view.moveThumb(80); }, 400, {80, 40}},
        {"the thumb below its end", [](auto& view) { view.moveThumb(500); }, 800, {160, 40}},
        {"in twice the scale",
         [](auto& view) {
             view.moveThumb(80);
             view.fit({2000, 400, 40});
         },
         800,
         {160, 80}},
        {"and back, where less is seen",
         [](auto& view) {
             view.fit({1000, 200, 20});
         },
         400,
         {80, 40}},
        {"pages past the end", [](auto& view) { view.moveThumb(140), view.page(true, 20); }, 800, {160, 40}},
        {"a shorter content",
         [](auto& view) {
             view.fit({700, 200, 20});
         },
         500,
         {143, 57}},
        {"a higher view",
         [](auto& view) {
             view.fit({700, 300, 20});
         },
         400,
         {171, 129}},
        {"all is seen",
         [](auto& view) {
             view.fit({300, 300, 20});
         },
         0,
         {0, 300}},
        {"nothing to scroll", [](auto& view) { view.turnWheel(-1200, 60); }, 0, {0, 300}},
        {"a thumb to hold",
         [](auto& view) {
             view.fit({100000, 200, 20});
         },
         0,
         {0, 20}},
        {"from end to end", [](auto& view) { view.moveThumb(180); }, 99800, {180, 20}},
        {"no room for it",
         [](auto& view) {
             view.fit({100000, 10, 20});
         },
         99800,
         {0, 10}},
        {"which does not move", [](auto& view) { view.moveThumb(5); }, 99800, {0, 10}},
        {"no view",
         [](auto& view) {
             view.fit({1000, -5, 20});
         },
         1000,
         {0, 0}},
    };
    ScrolledView view;
    for (const Row& row : rows) {
        row.scroll(view);
        EXPECT_EQ(view.offset(), row.offset) << row.step;
        EXPECT_EQ(view.thumb(), row.thumb) << row.step << ": " << view.thumb().top << ", " << view.thumb().height;
        EXPECT_EQ(view.scrolls(), row.thumb.height != 300) << row.step;
    }
}

}  // namespace
}  // namespace calquo
