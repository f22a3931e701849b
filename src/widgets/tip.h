// A small window of rows that says something about a line beside it. It never has the focus: the keys go on to where
// they went, and whoever shows the tip decides which of them are meant for it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "widgets/component.h"
#include "widgets/tip_layout.h"

namespace calquo {

/// Is told what happens to a tip.
struct TipListener {
    std::function<void(std::size_t row)> chosen = [](std::size_t) {};  ///< A row was clicked.
    std::function<void()> timeOver = [] {};                            ///< The time that was asked for has passed.
    std::function<void()> woken = [] {};                               ///< What wakeLater() asked for.
};

class Tip : public Component {
public:
    /// A hidden tip, before everything else on `parent`.
    Tip(WindowHandle parent, TipListener listener);

    /// Shows a content beside a line of the parent and inside an area of it. Of a list the first row is selected.
    void tell(TipContent content, const Rectangle& line, const Rectangle& area);
    bool isShown() const { return isShown_; }
    void hideTip();

    const TipContent& content() const { return content_; }
    std::size_t selected() const { return selected_; }
    /// Selects a row of a list and scrolls to it; beyond either end it is the row at that end.
    void select(std::ptrdiff_t row);

    /// Calls timeOver() once, after some milliseconds from now; what was asked for before no longer counts.
    void startTime(int milliseconds);
    void stopTime();
    /// Calls woken() when the messages that wait now have been served.
    void wakeLater();

protected:
    bool onPaint() override;
    bool onMouse(const MouseEvent& event) override;
    bool onTimer(std::uintptr_t timer) override;
    HitArea onHitTest(HitArea) const override { return HitArea::Client; }
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override;

private:
    static const WidgetClass& widgetClass();

    void place();
    int heightOfRows(std::size_t first, std::size_t end) const;
    std::size_t endOfShownRows() const;
    std::optional<std::size_t> rowAt(Point point) const;
    void speak();
    void paintRow(DrawingContext context, std::size_t row, int top, Color ink) const;

    TipListener listener_;
    TipContent content_;
    TipLayout layout_;
    Rectangle line_;
    Rectangle area_;
    std::size_t selected_ = 0;
    std::size_t first_ = 0;  ///< The first row that shows.
    std::optional<std::size_t> underMouse_;
    int mostHeightOfRows_ = 0;
    bool isShown_ = false;
};

}  // namespace calquo
