// The raised buttons of the panels and of the caption strip. They never take the focus.
#pragma once

#include <string_view>

#include "widgets/button_face.h"
#include "widgets/button_press.h"
#include "widgets/component.h"
#include "widgets/shape.h"

namespace calquo {

/// What a button shows and how it acts.
struct ButtonDescription {
    std::string_view label;
    std::string_view description;  ///< For the tooltip; empty for none.
    Symbol symbol = Symbol::None;  ///< Shown in place of the label.
    Color face = defaultFaceColor;
    int extraHalfWidths = 0;  ///< The width in half button sizes beyond the first two.
    bool repeats = false;     ///< Acts when pressed and while held, rather than when released.
};

/// Whether a notification is that of a button that acts.
constexpr bool isPress(const Notification& notification) {
    return notification.code == static_cast<std::uint16_t>(ButtonNotice::Pressed) ||
           notification.code == static_cast<std::uint16_t>(ButtonNotice::Clicked);
}

class Button : public Component {
public:
    /// A button that sends `parent` WM_COMMAND with `command` and a ButtonNotice.
    Button(WindowHandle parent, std::uint16_t command, const ButtonDescription& description);

    void fitToScale() override;
    std::string spokenName() const override { return spokenNameOf(text(), symbol_ == Symbol::None); }

    Symbol symbol() const { return symbol_; }
    Color face() const { return face_; }
    bool isPressed() const { return press_.isPressed(); }

    /// Draws the button into an area of `size` pixels from the context's origin; the font that it writes with stays
    /// selected.
    void drawFace(DrawingContext context, Size size) const;

    /// Changes the texts, the symbol and the colour; the rest stays.
    void setLook(const ButtonDescription& description);

private:
    static const WidgetClass& widgetClass();

    bool onMouse(const MouseEvent& event) override;
    bool onTimer(std::uintptr_t timer) override;
    bool onPaint() override;
    bool onPaintBackground(DrawingContext) override { return true; }  // painting covers everything
    bool onPaintFrame() override { return true; }                     // there is none

    void press();
    void release(Point position);
    void loseCapture();
    void redraw();
    void notify(ButtonNotice notice);

    int extraHalfWidths_;
    Symbol symbol_;
    Color face_;
    ButtonPress press_;
};

}  // namespace calquo
