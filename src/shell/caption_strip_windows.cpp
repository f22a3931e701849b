// The caption strip's buttons and its drawing.
#include "shell/caption_strip.h"

#include <span>
#include <utility>

#include "values/program.h"
#include "widgets/screens.h"
#include "widgets/system_colors.h"
#include "widgets/toolkit.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr std::uint32_t panelStyle = 0x7E8100;

struct CaptionButton {
    CaptionCommand command;
    ButtonDescription look;
};

constexpr CaptionButton leftButtons[] = {
    {CaptionCommand::MainMenu, {.label = "O", .description = "Main menu", .symbol = Symbol::MainMenu}},
    {CaptionCommand::ButtonsMenu, {.label = "B", .description = "Button Panels", .symbol = Symbol::Buttons}},
    {CaptionCommand::HelpMenu, {.label = "?", .description = "Help"}},
};

constexpr CaptionButton rightButtons[] = {
    {CaptionCommand::Minimize, {.label = "N", .description = "Minimize the window", .symbol = Symbol::Minimize}},
    {CaptionCommand::MaximizeOrRestore,
     {.label = "M", .description = "Maximize the window", .symbol = Symbol::Maximize}},
    {CaptionCommand::Close, {.label = "C", .description = "Close the window", .symbol = Symbol::Close}},
};

/// What the button that maximizes the window looks like while the window is maximized.
constexpr ButtonDescription restoreLook{.label = "R", .description = "Restore the window", .symbol = Symbol::Restore};

const CaptionColors& colorsOf(bool active) { return active ? palette().activeCaption : palette().inactiveCaption; }

void addButtons(Panel& panel, std::span<const CaptionButton> buttons) {
    for (const CaptionButton& button : buttons) {
        panel.add<Button>(static_cast<std::uint16_t>(button.command), button.look);
    }
}

}  // namespace

CaptionStrip::CaptionStrip(WindowHandle parent)
    : left_(parent, {leftCaptionPanel, panelStyle, Direction::Across, true}),
      right_(parent, {rightCaptionPanel, panelStyle, Direction::Across, true}) {
    addButtons(left_, leftButtons);
    addButtons(right_, rightButtons);
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
    const auto give = [this](const Panel& panel, std::span<const CaptionButton> buttons) {
        for (std::size_t index = 0; index < buttons.size(); ++index) {
            const bool restores = maximized_ && buttons[index].command == CaptionCommand::MaximizeOrRestore;
            ButtonDescription look = restores ? restoreLook : buttons[index].look;
            look.face = colorsOf(active_).button;
            dynamic_cast<Button&>(*panel.children()[index]).setLook(look);
        }
    };
    give(left_, leftButtons);
    give(right_, rightButtons);
}

Color CaptionStrip::background() const { return colorsOf(active_).title.ground; }

void CaptionStrip::paint(DrawingContext context, const Rectangle& title) const {
    RECT area = edgesOf(title);
    SetBkColor(context, colorReference(background()));
    ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);  // fills it without a brush
    SetTextColor(context, colorReference(colorsOf(active_).title.ink));
    const HGDIOBJ before = SelectObject(context, buttonFont());
    InflateRect(&area, -buttonSize() / 2, 0);
    DrawTextW(context, wideProgramTitle, -1, &area,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(context, before);
}

}  // namespace calquo
