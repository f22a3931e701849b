// The caption strip's panels and its drawing.
#include "shell/caption_strip.h"

#include <utility>

#include "values/program.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::string_view maximizeLabel = "M";

/// The colours of the strip: behind everything, and of the buttons.
struct CaptionColors {
    Color ground;
    Color face;
};
constexpr CaptionColors activeColors{{38, 56, 89}, {58, 80, 120}};
constexpr CaptionColors inactiveColors{{188, 194, 204}, {210, 215, 223}};

const CaptionColors& colorsOf(bool active) { return active ? activeColors : inactiveColors; }

}  // namespace

CaptionStrip::CaptionStrip(WindowHandle parent)
    : left_(parent, leftCaptionPanel, captionPanel(leftCaptionPanel)),
      right_(parent, rightCaptionPanel, captionPanel(rightCaptionPanel)) {
    giveLooks();
}

void CaptionStrip::showMaximized(bool maximized) {
    if (std::exchange(maximized_, maximized) != maximized) {
        giveLooks();
    }
}

void CaptionStrip::showActive(bool active) {
    if (std::exchange(active_, active) != active) {
        giveLooks();
    }
}

void CaptionStrip::giveLooks() {
    for (const ButtonPanel* const panel : {&left_, &right_}) {
        for (const auto& child : panel->children()) {
            const PanelButton& own = panel->entryOf(*child);
            ButtonDescription look = descriptionOf(maximized_ && own.label == maximizeLabel ? restoreButton() : own);
            look.face = colorsOf(active_).face;
            dynamic_cast<Button&>(*child).setLook(look);
        }
    }
}

Color CaptionStrip::ground() const { return colorsOf(active_).ground; }

void CaptionStrip::paint(DrawingContext context, const Rectangle& place) const {
    RECT area{place.left, place.top, place.left + place.width, place.top + place.height};
    SetBkColor(context, colorReference(ground()));
    ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);  // fills it without a brush
    SetTextColor(context, colorReference(textColorOn(ground())));
    const HGDIOBJ before = SelectObject(context, buttonFont());
    InflateRect(&area, -buttonSize() / 2, 0);
    DrawTextW(context, wideProgramTitle, -1, &area,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(context, before);
}

}  // namespace calquo
