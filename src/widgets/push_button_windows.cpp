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

std::optional<MessageAnswer> answerDialog(const Message& message) {
    // Without a word of being or not being the default one, so that the system leaves the look as it is.
    return message.code == WM_GETDLGCODE ? std::optional<MessageAnswer>(DLGC_BUTTON) : std::nullopt;
}

}  // namespace

const Component::WidgetClass& PushButton::widgetClass() {
    static const WidgetClass registered = registerClass(L"BUTTON", L"CalquoPushButton");
    return registered;
}

PushButton::PushButton(WindowHandle parent, std::uint16_t command, std::string_view text, Look look)
    : Component(widgetClass(),
                {parent, command,
                 (look == Look::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | std::uint32_t{WS_TABSTOP}, text},
                answerDialog) {
    showIn(textFont());
    const Size written = extentOf(textFont(), wideText(label()));
    const int dots = dotsPerInch();
    setPreferredSize({std::max(scaledToScreen(leastWidth, dots), written.width + scaledToScreen(spareWidth, dots)),
                      written.height + scaledToScreen(spareHeight, dots)});
}

}  // namespace calquo
