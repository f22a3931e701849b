// The caption strip's panels and its drawing.
#include "shell/caption_strip.h"

#include "shell/command_ids.h"
#include "shell/program_title.h"
#include "widgets/color.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uint16_t leftIdentifier = identifierOf(Command::LeftCaptionPanel);
constexpr std::uint16_t rightIdentifier = identifierOf(Command::RightCaptionPanel);
constexpr std::string_view maximizeLabel = "M";

/// The title and its ground, while the window is active and while it is not.
constexpr Color activeGround{44, 62, 92};
constexpr Color inactiveGround{168, 174, 184};

}  // namespace

CaptionStrip::CaptionStrip(WindowHandle parent)
    : left_(parent, leftIdentifier, captionPanel(leftIdentifier)),
      right_(parent, rightIdentifier, captionPanel(rightIdentifier)) {
    for (const auto& child : right_.children()) {
        if (child->label() == maximizeLabel) {
            maximizeButton_ = dynamic_cast<Button*>(child.get());
        }
    }
}

void CaptionStrip::showMaximized(bool maximized) {
    if (maximized == maximized_ || maximizeButton_ == nullptr) {
        return;
    }
    maximized_ = maximized;
    maximizeButton_->setLook(descriptionOf(maximized ? restoreButton() : right_.entryOf(*maximizeButton_)));
}

void CaptionStrip::paint(DrawingContext context, const Rectangle& place, bool active) {
    const Color ground = active ? activeGround : inactiveGround;
    RECT area{place.left, place.top, place.left + place.width, place.top + place.height};
    SetBkColor(context, colorReference(ground));
    ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);  // fills it without a brush
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colorReference(textColorOn(ground)));
    const HGDIOBJ before = SelectObject(context, buttonFont());
    InflateRect(&area, -buttonSize() / 2, 0);
    const std::wstring title = wideProgramTitle();
    DrawTextW(context, title.c_str(), static_cast<int>(title.size()), &area,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(context, before);
}

}  // namespace calquo
