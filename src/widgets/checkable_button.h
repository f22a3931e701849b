// What check boxes and radio buttons share: a mark that the user sets, and a text beside it.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

class CheckableButton : public Component {
public:
    bool isChecked() const override;
    void setChecked(bool checked) override;

protected:
    /// `style` is that of the system's button; the rest as with its heirs.
    CheckableButton(WindowHandle parent, std::uint16_t command, std::uint32_t style, std::string_view text);

private:
    static const WidgetClass& widgetClass();
};

}  // namespace calquo
