// Which part of something high is seen through a lower view, and the thumb of the bar that shows it.
#pragma once

namespace calquo {

/// From a pixel on so many downwards.
struct Stretch {
    int top = 0;
    int height = 0;

    friend bool operator==(const Stretch&, const Stretch&) = default;
};

/// What a scrolled view is worked out from, in pixels.
struct ScrolledHeights {
    int content = 0;
    int view = 0;  ///< The bar is as high.
    int row = 0;   ///< Of the content, in the scale in force. A lower thumb would be hard to take hold of.
};

class ScrolledView {
public:
    /// Takes over other heights. What is seen stays where it was, as far as the content reaches; in another scale,
    /// which shows by the height of a row, that is the same part of the content.
    void fit(const ScrolledHeights& heights);

    /// Whether there is more than is seen.
    bool scrolls() const { return farthest() > 0; }
    /// How much of the content is above the view, from 0.
    int offset() const { return offset_; }

    /// Scrolls as little as brings a part of the content into view, or its beginning when it is higher than the view.
    void bringIntoView(Stretch part);
    /// Scrolls by a turn of the wheel: `delta` of the system's units, of which a notch away from the user has 120, and
    /// `notch` pixels for each notch. What is less than a pixel counts with the next turn.
    void turnWheel(int delta, int notch);
    /// Scrolls by a view less `overlap`.
    void page(bool down, int overlap);

    /// Where the thumb is in the bar.
    Stretch thumb() const;
    /// Scrolls to where the thumb begins at `top`, as far as it can get there.
    void moveThumb(int top);

private:
    int farthest() const;
    int thumbHeight() const;
    void scrollTo(long long offset);

    ScrolledHeights heights_;
    int offset_ = 0;
    long long wheelRemainder_ = 0;
};

}  // namespace calquo
