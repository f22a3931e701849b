// A box to tick, and a choice of which one among several holds: the system's buttons with a check mark and a text.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

class CheckBox : public Component {
public:
    /// A box with the label of `text`, "label|description"; an "&" in it marks the letter of its key.
    CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text);

    void fitToScale() override;
    bool isChecked() const override;
    void setChecked(bool checked) override;

protected:
    /// `style` is that of the system's button.
    CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text, std::uint32_t style);

private:
    static const WidgetClass& widgetClass();
};

class RadioButton : public CheckBox {
public:
    /// The choices made on one parent from one that `opensGroup` up to the next exclude each other when the user
    /// chooses.
    RadioButton(WindowHandle parent, std::uint16_t command, std::string_view text, bool opensGroup);
};

}  // namespace calquo
