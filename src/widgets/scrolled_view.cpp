// The arithmetic of scrolling, in 64 bits: products of pixels may leave 32.
#include "widgets/scrolled_view.h"

#include <algorithm>

namespace calquo {
namespace {

constexpr int wheelUnitsOfNotch = 120;

/// factor * number / divisor to the nearest whole number; all of them at least 0, the divisor more.
int proportion(long long factor, int number, int divisor) {
    return static_cast<int>((factor * number + divisor / 2) / divisor);
}

}  // namespace

void ScrolledView::fit(const ScrolledHeights& heights) {
    const bool isScaled = heights.row != heights_.row && heights_.content > 0;
    const int offset = isScaled ? proportion(offset_, heights.content, heights_.content) : offset_;
    heights_ = heights;
    heights_.view = std::max(0, heights.view);
    scrollTo(offset);
}

int ScrolledView::farthest() const { return std::max(0, heights_.content - heights_.view); }

void ScrolledView::scrollTo(long long offset) {
    offset_ = static_cast<int>(std::clamp<long long>(offset, 0, farthest()));
}

void ScrolledView::bringIntoView(Stretch part) {
    if (part.top < offset_ || part.height >= heights_.view) {
        scrollTo(part.top);
    } else {
        scrollTo(std::max(offset_, part.top + part.height - heights_.view));
    }
}

void ScrolledView::turnWheel(int delta, int notch) {
    const long long turned = wheelRemainder_ + static_cast<long long>(delta) * notch;
    wheelRemainder_ = turned % wheelUnitsOfNotch;
    scrollTo(offset_ - turned / wheelUnitsOfNotch);
}

void ScrolledView::page(bool down, int overlap) {
    const int step = std::max(1, heights_.view - overlap);
    scrollTo(static_cast<long long>(offset_) + (down ? step : -step));
}

int ScrolledView::thumbHeight() const {
    if (!scrolls()) {
        return heights_.view;
    }
    const int inProportion = proportion(heights_.view, heights_.view, heights_.content);
    return std::min(heights_.view, std::max(inProportion, heights_.row));
}

Stretch ScrolledView::thumb() const {
    const int height = thumbHeight();
    return {scrolls() ? proportion(offset_, heights_.view - height, farthest()) : 0, height};
}

void ScrolledView::moveThumb(int top) {
    const int way = heights_.view - thumbHeight();
    if (way > 0) {
        scrollTo(proportion(std::clamp(top, 0, way), farthest(), way));
    }
}

}  // namespace calquo
