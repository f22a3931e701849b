// The system's push buttons, which take the focus: for dialogs.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

class PushButton : public Component {
public:
    enum class Look : std::uint8_t { Plain, Default };

    /// A button with the label of `text`. The look of the default one says that the Enter key does the same, wherever
    /// the focus is; it never moves to another button.
    PushButton(WindowHandle parent, std::uint16_t command, std::string_view text, Look look);

    void fitToScale() override;

protected:
    std::optional<std::intptr_t> onSimpleMessage(std::uint32_t message) override;

private:
    static const WidgetClass& widgetClass();
};

}  // namespace calquo
