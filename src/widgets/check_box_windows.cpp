// The system's buttons with a check mark.
#include "widgets/check_box.h"

#include "widgets/fonts.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// The check mark and its distance to the text, and the room above and below both, at 96 dots per inch.
constexpr int checkMarkWidth = 22;
constexpr int spareHeight = 4;

}  // namespace

const Component::WidgetClass& CheckBox::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoCheckBox");
    return registered;
}

CheckBox::CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text, std::uint32_t style)
    : Component(widgetClass(), {parent, command, style, text}) {
    CheckBox::fitToScale();
}

void CheckBox::fitToScale() {
    showIn(textFont());
    const Size written = extentOf(textFont(), wideText(label()));
    setPreferredSize({written.width + scaled(checkMarkWidth), written.height + scaled(spareHeight)});
}

CheckBox::CheckBox(WindowHandle parent, std::uint16_t command, std::string_view text)
    : CheckBox(parent, command, text, std::uint32_t{BS_AUTOCHECKBOX | WS_TABSTOP}) {}

bool CheckBox::isChecked() const { return SendMessageW(handle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void CheckBox::setChecked(bool checked) {
    SendMessageW(handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

RadioButton::RadioButton(WindowHandle parent, std::uint16_t command, std::string_view text, bool opensGroup)
    : CheckBox(parent, command, text,
               std::uint32_t{BS_AUTORADIOBUTTON} | (opensGroup ? std::uint32_t{WS_GROUP | WS_TABSTOP} : 0)) {}

}  // namespace calquo
