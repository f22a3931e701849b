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

/// How much of a stretch lies within another one; negative for stretches that do not meet.
std::int64_t commonLength(std::int64_t first, std::int64_t length, std::int64_t second, std::int64_t otherLength) {
    return std::min(first + length, second + otherLength) - std::max(first, second);
}

/// Whether an area shows enough of the caption strip of a window.
bool showsCaption(const Rectangle& area, const Rectangle& window, const WindowReach& reach) {
    const std::int64_t left = std::int64_t{window.left} - reach.frame.left;
    const std::int64_t width = std::int64_t{window.width} - reach.frame.width;
    const std::int64_t top = std::int64_t{window.top} - reach.frame.top;
    return commonLength(left, width, area.left, area.width) >= reach.captionPiece.width &&
           commonLength(top, reach.captionHeight, area.top, area.height) >= reach.captionPiece.height;
}

/// Where a stretch begins that has grown, within another one as far as it was before.
int beginAfterGrowth(int begin, int length, int mostBegin, int mostLength) {
    return std::clamp(mostBegin + mostLength - length, std::min(begin, mostBegin), begin);
}

Size sizeOf(const Rectangle& rectangle) { return {rectangle.width, rectangle.height}; }

Point cornerOf(const Rectangle& rectangle) { return {rectangle.left, rectangle.top}; }

Size largerOf(Size one, Size other) { return {std::max(one.width, other.width), std::max(one.height, other.height)}; }

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

    int top = 0;
    for (const Size& panel : parts.panels) {
        const Size shown = showsPanels(parts) ? panel : Size{};
        layout.panels.push_back({0, top, shown.width, shown.height});
        top += shown.height;
    }

    const int left = columnSize(parts).width;
    const int height = std::max(0, client.height - strip);
    layout.column = {0, strip, left, height};
    layout.workArea = {left, strip, std::max(0, client.width - left), height};
    return layout;
}

Rectangle reachableRectangle(const Rectangle& wanted, const WindowReach& reach,
                             const std::vector<Rectangle>& usableAreas) {
    const bool isLarge = wanted.width >= reach.smallest.width && wanted.height >= reach.smallest.height;
    const bool isShown =
        std::ranges::any_of(usableAreas, [&](const Rectangle& area) { return showsCaption(area, wanted, reach); });
    if (usableAreas.empty() || (isShown && (isLarge || reach.mayBeSmall))) {
        return wanted;
    }
    const Rectangle& area = usableAreas.front();
    if (!isLarge) {
        return {area.left + area.width / 4, area.top + area.height / 4, area.width / 2, area.height / 2};
    }
    const Size size{std::min(wanted.width, area.width), std::min(wanted.height, area.height)};
    return {std::clamp(wanted.left, area.left, area.left + area.width - size.width),
            std::clamp(wanted.top, area.top, area.top + area.height - size.height), size.width, size.height};
}

Rectangle maximizedRectangle(const Rectangle& usableArea, const Rectangle& frame) {
    return {usableArea.left + frame.left, usableArea.top + frame.top, usableArea.width + frame.width,
            usableArea.height + frame.height};
}

Rectangle resizedRectangle(const Rectangle& window, Size size, const Rectangle& most) {
    Rectangle resized{window.left, window.top, size.width, size.height};
    if (size.width > window.width) {
        resized.left = beginAfterGrowth(window.left, size.width, most.left, most.width);
    }
    if (size.height > window.height) {
        resized.top = beginAfterGrowth(window.top, size.height, most.top, most.height);
    }
    return resized;
}

Rectangle WindowGrowth::rectangleFor(const Rectangle& present, Size least, const Rectangle& most) {
    const Size size = sizeOf(present);
    if (size != sizeOf(told_)) {
        before_.reset();
    }
    if (!before_ || cornerOf(present) != cornerOf(told_)) {
        corner_.reset();
    }
    const Size wanted = largerOf(before_.value_or(size), least);
    const Rectangle from = corner_ ? Rectangle{corner_->left, corner_->top, before_->width, before_->height} : present;
    told_ = wanted == size ? present : resizedRectangle(from, wanted, most);
    if (wanted == before_) {
        before_.reset();
    } else if (!before_ && wanted != size) {
        before_ = size;
        corner_ = cornerOf(present);
    }
    return told_;
}

}  // namespace calquo
