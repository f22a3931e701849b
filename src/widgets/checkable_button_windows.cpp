// The system's buttons with a mark.
#include "widgets/checkable_button.h"

#include "widgets/check_box.h"
#include "widgets/fonts.h"
#include "widgets/radio_button.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The mark and its distance to the text, and the room above and below both, at 96 dots per inch.
constexpr int markWidth = 22;
constexpr int spareHeight = 4;

}  // namespace

const Component::WidgetClass& CheckableButton::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoCheckBox");
    return registered;
}

CheckableButton::CheckableButton(WindowHandle parent, std::uint16_t command, std::uint32_t style, std::string_view text)
    : Component(widgetClass(), {parent, command, style, text}, nullptr) {
    showIn(textFont());
    const Size written = extentOf(textFont(), wideText(label()));
    const int dots = dotsPerInch();
    setPreferredSize(
        {written.width + scaledToScreen(markWidth, dots), written.height + scaledToScreen(spareHeight, dots)});
}

bool CheckableButton::isChecked() const { return SendMessageW(handle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void CheckableButton::setChecked(bool checked) {
    SendMessageW(handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

CheckBox::CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text)
    : CheckableButton(parent, command, BS_AUTOCHECKBOX | WS_TABSTOP, text) {}

RadioButton::RadioButton(WindowHandle parent, std::uint16_t command, std::string_view text, bool opensGroup)
    : CheckableButton(parent, command, BS_AUTORADIOBUTTON | (opensGroup ? WS_GROUP | WS_TABSTOP : 0), text) {}

}  // namespace calquo
