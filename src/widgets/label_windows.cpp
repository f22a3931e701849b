// The windows of texts.
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

Label::Label(WindowHandle parent, std::uint16_t command, std::uint32_t style, std::string_view text,
             FontHandle (*font)())
    : Component(widgetClass(), {parent, command, style, text}), font_(font) {
    Label::fitToScale();
}

void Label::fitToScale() {
    showIn(font_());
    setPreferredSize(extentOf(font_(), wideText(label())));
}

Label::Label(WindowHandle parent, std::uint16_t command, std::string_view text, FontHandle (*font)())
    : Label(parent, command, SS_CENTERIMAGE, text, font) {}

Label::Label(WindowHandle parent, std::uint16_t command, std::string_view text)
    : Label(parent, command, text, textFont) {}

TextBlock::TextBlock(WindowHandle parent, std::uint16_t command, std::string_view text)
    : Label(parent, command, SS_LEFT | SS_NOPREFIX, text, textFont) {}

HitArea Label::onHitTest(HitArea byClass) const {
    // The system's class lets the mouse through to the parent, and no tooltip would ever notice it.
    return description().empty() ? byClass : HitArea::Client;
}

}  // namespace calquo
