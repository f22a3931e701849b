// A line of text.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

class Label : public Component {
public:
    /// Shows the label of `text`, "label|description"; an "&" in it marks the letter of its key.
    Label(WindowHandle parent, std::uint16_t command, std::string_view text);

private:
    static const WidgetClass& widgetClass();

    std::optional<MessageAnswer> hear(const Message& message) const;
};

}  // namespace calquo
