// The label's window.
#include "widgets/label.h"

#include "widgets/fonts.h"
#include "widgets/toolkit.h"
#include "widgets/wide_text.h"
#include "widgets/windows_api.h"

namespace calquo {

const Component::WidgetClass& Label::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoLabel");
    return registered;
}

Label::Label(WindowHandle parent, std::uint16_t command, std::string_view text)
    : Component(widgetClass(), {parent, command, SS_CENTERIMAGE, text},
                [this](const Message& message) { return hear(message); }) {
    showIn(textFont());
    setPreferredSize(extentOf(textFont(), wideText(label())));
}

std::optional<MessageAnswer> Label::hear(const Message& message) const {
    // The system's class lets the mouse through to the parent, and no tooltip would ever hear of it.
    if (message.code == WM_NCHITTEST && !description().empty()) {
        return HTCLIENT;
    }
    return std::nullopt;
}

}  // namespace calquo
