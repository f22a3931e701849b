// The push button's window.
#include "widgets/push_button.h"

#include <algorithm>

#include "widgets/fonts.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

// At 96 dots per inch.
constexpr int leastWidth = 80;
constexpr int spareWidth = 24;
constexpr int spareHeight = 12;

}  // namespace

const Component::WidgetClass& PushButton::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoPushButton");
    return registered;
}

PushButton::PushButton(WindowHandle parent, std::uint16_t command, std::string_view text, Look look)
    : Component(widgetClass(),
                {parent, command,
                 (look == Look::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | std::uint32_t{WS_TABSTOP}, text}) {
    PushButton::fitToScale();
}

void PushButton::fitToScale() {
    showIn(textFont());
    const Size written = extentOf(textFont(), wideText(label()));
    setPreferredSize(
        {std::max(scaled(leastWidth), written.width + scaled(spareWidth)), written.height + scaled(spareHeight)});
}

std::optional<std::intptr_t> PushButton::onSimpleMessage(std::uint32_t message) {
    // Without a word of being or not being the default one, so that the system leaves the look as it is.
    return message == WM_GETDLGCODE ? std::optional<std::intptr_t>(DLGC_BUTTON) : std::nullopt;
}

}  // namespace calquo
