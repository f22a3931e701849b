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
    int widthNumber = 0;   ///< The width in half button sizes beyond the first two.
    bool repeats = false;  ///< Acts when pressed and while held, rather than when released.
};

class Button : public Component {
public:
    /// A button that sends `parent` WM_COMMAND with `command` and a ButtonNotice.
    Button(WindowHandle parent, std::uint16_t command, const ButtonDescription& description);

    Symbol symbol() const { return symbol_; }
    Color face() const { return face_; }
    bool isPressed() const { return press_.isPressed(); }

    /// Draws the button into an area of `size` pixels from the context's origin; the font that it writes with stays
    /// selected.
    void drawFace(DrawingContext context, Size size) const;

    /// Changes the texts, the symbol and the colour; the rest stays.
    void setLook(const ButtonDescription& description);

private:
    struct MessageRow;
    static const MessageRow messageRows[];
    static const WidgetClass& widgetClass();

    std::optional<MessageAnswer> hear(const Message& message);
    std::optional<MessageAnswer> press(const Message& message);
    std::optional<MessageAnswer> repeat(const Message& message);
    std::optional<MessageAnswer> release(const Message& message);
    std::optional<MessageAnswer> loseCapture(const Message& message);
    std::optional<MessageAnswer> paint(const Message& message);
    std::optional<MessageAnswer> keepBackground(const Message& message);

    void redraw();
    void notify(ButtonNotice notice);

    Symbol symbol_;
    Color face_;
    ButtonPress press_;
};

}  // namespace calquo
