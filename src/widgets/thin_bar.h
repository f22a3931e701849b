// A thin bar that shows which part of something is seen, and scrolls it by the mouse. It never has the focus.
#pragma once

#include <functional>
#include <optional>

#include "widgets/component.h"
#include "widgets/scrolled_view.h"

namespace calquo {

class ThinBar : public Component {
public:
    /// A bar before everything else on `parent`. `view`, which must outlive it, is scrolled by the mouse, and
    /// `scrolled` is called afterwards.
    ThinBar(WindowHandle parent, ScrolledView& view, std::function<void()> scrolled);

    /// As wide as a panel's margin, so that it covers no button.
    Size preferredSize() const override;
    /// Shows the present state of the view.
    void refresh();

protected:
    HitArea onHitTest(HitArea) const override { return HitArea::Client; }
    bool onMouse(const MouseEvent& event) override;
    bool onPaint() override;
    bool onPaintBackground(DrawingContext) override { return true; }

private:
    static const WidgetClass& widgetClass();

    void press(int top);

    ScrolledView& view_;
    std::function<void()> scrolled_;
    std::optional<int> grip_;  ///< Where the mouse holds the thumb, from its upper edge.
};

}  // namespace calquo
