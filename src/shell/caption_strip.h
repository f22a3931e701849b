// The window's own caption: two panels of buttons in its corners and the title between them.
#pragma once

#include <cstdint>

#include "widgets/button.h"
#include "widgets/color.h"
#include "widgets/geometry.h"
#include "widgets/panel.h"

namespace calquo {

/// The commands of the caption's buttons, in their order from left to right.
enum class CaptionCommand : std::uint16_t {
    MainMenu = 1,
    ButtonsMenu,
    HelpMenu,
    Minimize,
    MaximizeOrRestore,
    Close,
};

/// The identifiers of the two panels, outside the range of those that a menu opens.
inline constexpr std::uint16_t leftCaptionPanel = 0x9011;
inline constexpr std::uint16_t rightCaptionPanel = 0x9012;

class CaptionStrip {
public:
    /// `parent` is sent the commands of the buttons.
    explicit CaptionStrip(WindowHandle parent);

    Panel& left() { return left_; }
    Panel& right() { return right_; }

    /// Lets the maximize button restore the window, and back.
    void showMaximized(bool maximized);
    /// Takes the colours of an active window, or of another.
    void showActive(bool active);

    /// Takes the colours of the palette in force.
    void takeColors() { giveLooks(); }

    /// The colour of the strip behind the title and the buttons.
    Color background() const;
    /// Draws the title into its rectangle between the panels.
    void paint(DrawingContext context, const Rectangle& title) const;

private:
    void giveLooks();

    Panel left_;
    Panel right_;
    bool maximized_ = false;
    bool active_ = false;
};

}  // namespace calquo
