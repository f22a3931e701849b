// A widget that other widgets stand on, in a row or one below the other.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "widgets/component.h"

namespace calquo {

enum class Direction : std::uint8_t {
    Down,    ///< One below the other, from the left edge.
    Across,  ///< A row, from left to right.
};

/// The bits of a panel's style word that mean something; all others are free.
enum PanelStyle : std::uint32_t {
    panelMargin = 0x10000,  ///< Keeps a quarter of a button's size free around its children.
};

class Panel : public Component {
public:
    struct Creation {
        std::uint16_t command = 0;
        std::uint32_t style = 0;  ///< Bits of PanelStyle.
        Direction direction = Direction::Down;
        /// Paints its children as well, all at once: panels that do so too, and buttons.
        bool paintsChildren = false;
        /// Lets Tab walk among its children, in a dialog.
        bool holdsTabStops = false;
        /// Makes its children's windows when makeChildren() or the mouse asks for them; until then it paints them.
        bool makesChildrenLater = false;
    };

    Panel(WindowHandle parent, const Creation& creation);
    ~Panel() override;

    /// Makes a widget on this panel, after those that it has: a Widget(parent, arguments...), whose parent is this
    /// panel or, until its children's windows are made, null.
    template <typename Widget, typename... Arguments>
    Widget& add(Arguments&&... arguments) {
        const WindowHandle parent = awaitsChildren_ ? nullptr : handle();
        auto widget = std::make_unique<Widget>(parent, std::forward<Arguments>(arguments)...);
        Widget& added = *widget;
        children_.push_back(std::move(widget));
        return added;
    }

    const std::vector<std::unique_ptr<Component>>& children() const { return children_; }
    /// Makes the windows of the children, if they are still to come; false if they are there.
    bool makeChildren();
    void makeWindow(WindowHandle parent) override;

    /// The size of the children in their direction, and of the margin.
    Size preferredSize() const override;
    void fitToScale() override;
    /// Places the children within the panel's present size, and theirs.
    void layOut() override;
    /// Passes the notification on to the panel's own parent, unchanged.
    bool onCommand(const Notification& notification) override;
    /// The panel's own, which its parent chooses, goes on below whatever stands on it.
    std::optional<Color> backgroundOf(WindowHandle child) const override;

protected:
    HitArea onHitTest(HitArea byClass) const override;
    bool onMouse(const MouseEvent& event) override;
    bool onPaint() override;
    bool onPaintBackground(DrawingContext) override { return paintsChildren_; }
    bool onPaintFrame() override { return true; }  // there is none
    bool onDrawChild(WindowHandle child, DrawingContext context, Size size) override;

private:
    static const WidgetClass& widgetClass();

    int margin() const;
    void layOutDown(int width);
    void layOutAcross(int width);
    void drawChildren(DrawingContext context) const;

    Direction direction_;
    bool hasMargin_;
    bool paintsChildren_;
    bool awaitsChildren_;
    std::vector<std::unique_ptr<Component>> children_;
};

}  // namespace calquo
