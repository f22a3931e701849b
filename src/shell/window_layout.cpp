// The arithmetic of the main window's layout.
#include "shell/window_layout.h"

#include <algorithm>
#include <cstdint>

namespace calquo {
namespace {

bool showsPanels(const WindowParts& parts) { return !parts.panelsHidden && !parts.panels.empty(); }

/// The panels' column: as wide as the widest, as high as all together.
Size columnSize(const WindowParts& parts) {
    Size column{};
    if (showsPanels(parts)) {
        for (const Size& panel : parts.panels) {
            column.width = std::max(column.width, panel.width);
            column.height += panel.height;
        }
    }
    return column;
}

bool overlaps(const Rectangle& one, const Rectangle& other) {
    const auto meet = [](std::int64_t first, std::int64_t length, std::int64_t second, std::int64_t otherLength) {
        return first < second + otherLength && second < first + length;
    };
    return meet(one.left, one.width, other.left, other.width) && meet(one.top, one.height, other.top, other.height);
}

}  // namespace

Size smallestClient(const WindowParts& parts) {
    const Size column = columnSize(parts);
    const int captions = parts.leftCaption.width + parts.rightCaption.width;
    return {std::max(captions, column.width + parts.smallestWorkArea.width),
            parts.leftCaption.height + std::max(column.height, parts.smallestWorkArea.height)};
}

WindowLayout layOutWindow(Size client, const WindowParts& parts) {
    const int strip = parts.leftCaption.height;
    const int rightEdge = client.width - parts.rightCaption.width;
    WindowLayout layout;
    layout.leftCaption = {0, 0, parts.leftCaption.width, strip};
    layout.rightCaption = {rightEdge, 0, parts.rightCaption.width, parts.rightCaption.height};
    layout.title = {parts.leftCaption.width, 0, std::max(0, rightEdge - parts.leftCaption.width), strip};

    int top = strip;
    for (const Size& panel : parts.panels) {
        const Size shown = showsPanels(parts) ? panel : Size{};
        layout.panels.push_back({0, top, shown.width, shown.height});
        top += shown.height;
    }

    const int left = columnSize(parts).width;
    layout.workArea = {left, strip, std::max(0, client.width - left), std::max(0, client.height - strip)};
    return layout;
}

Rectangle reachableRectangle(const Rectangle& wanted, Size smallest, const std::vector<Rectangle>& usableAreas) {
    const bool usable = wanted.width >= smallest.width && wanted.height >= smallest.height;
    const bool shown = std::ranges::any_of(usableAreas, [&](const Rectangle& area) { return overlaps(wanted, area); });
    if ((usable && shown) || usableAreas.empty()) {
        return wanted;
    }
    const Rectangle& area = usableAreas.front();
    return {area.left + area.width / 4, area.top + area.height / 4, area.width / 2, area.height / 2};
}

Rectangle maximizedRectangle(const Rectangle& usableArea, const Rectangle& frame) {
    return {usableArea.left + frame.left + 1, usableArea.top + frame.top + 1, usableArea.width + frame.width - 2,
            usableArea.height + frame.height - 2};
}

}  // namespace calquo
