// A box to tick, with its text beside it.
#pragma once

#include "widgets/checkable_button.h"

namespace calquo {

class CheckBox : public CheckableButton {
public:
    /// A box with the label of `text`, "label|description"; an "&" in it marks the letter of its key.
    CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text);
};

}  // namespace calquo
