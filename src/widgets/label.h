// Text that stands on a panel or in a dialog.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

/// A line of text.
class Label : public Component {
public:
    /// Shows the label of `text`, "label|description"; an "&" in it marks the letter of its key.
    Label(WindowHandle parent, std::uint16_t command, std::string_view text);
    /// The same in the font that `font` gives in the scale in force.
    Label(WindowHandle parent, std::uint16_t command, std::string_view text, FontHandle (*font)());

    void fitToScale() override;

protected:
    /// `style` is that of the system's static control.
    Label(WindowHandle parent, std::uint16_t command, std::uint32_t style, std::string_view text, FontHandle (*font)());

    HitArea onHitTest(HitArea byClass) const override;

private:
    static const WidgetClass& widgetClass();

    FontHandle (*font_)();
};

/// Text that is broken into lines at its width.
class TextBlock : public Label {
public:
    TextBlock(WindowHandle parent, std::uint16_t command, std::string_view text);

    void write(std::string_view text) { setText(text); }
};

}  // namespace calquo
