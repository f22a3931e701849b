// One of several choices of which one holds.
#pragma once

#include "widgets/checkable_button.h"

namespace calquo {

class RadioButton : public CheckableButton {
public:
    /// A choice with the label of `text`, "label|description"; an "&" in it marks the letter of its key. The choices
    /// made on one parent from one that `opensGroup` up to the next exclude each other when the user chooses.
    RadioButton(WindowHandle parent, std::uint16_t command, std::string_view text, bool opensGroup);
};

}  // namespace calquo
