// The number field's window.
#include "widgets/number_field.h"

#include <algorithm>

#include "widgets/fonts.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr wchar_t widestNumber[] = L"00000";

/// For the border and the field's inner margins, at 96 dots per inch.
constexpr int spareWidth = 14;
/// Within the border, in pixels of every screen: the system writes at the upper edge, whatever the field's height is.
constexpr int spareHeight = 4;

}  // namespace

static_assert(NumberField::changeNotice == EN_CHANGE);

const Component::WidgetClass& NumberField::widgetClass() {
    static const WidgetClass registered = registerClass(L"EDIT", L"CalquoNumberField");
    return registered;
}

NumberField::NumberField(WindowHandle parent, std::uint16_t command, std::uint32_t number, std::string_view description)
    : Component(widgetClass(), {parent, command, ES_AUTOHSCROLL | ES_RIGHT | WS_TABSTOP, storedText("", description),
                                WS_EX_CLIENTEDGE}) {
    NumberField::fitToScale();
    SetWindowTextW(handle(), std::to_wstring(number).c_str());
}

void NumberField::fitToScale() {
    showIn(textFont());
    const Size written = extentOf(textFont(), widestNumber);
    setPreferredSize(
        {written.width + scaled(spareWidth), written.height + 2 * GetSystemMetrics(SM_CYEDGE) + spareHeight});
}

std::string NumberField::typed() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle())) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(handle(), text.data(), static_cast<int>(text.size()))));
    std::string narrow(text.size(), '?');
    std::transform(text.begin(), text.end(), narrow.begin(),
                   [](wchar_t unit) { return unit < 0x80 ? static_cast<char>(unit) : '?'; });
    return narrow;
}

void NumberField::selectAll() { SendMessageW(handle(), EM_SETSEL, 0, -1); }

}  // namespace calquo
