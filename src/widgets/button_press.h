// What the mouse does to a button, step by step: when it looks pressed, what it tells its parent, when its timer runs.
#pragma once

#include <cstdint>

namespace calquo {

/// What a button tells its parent: the notification code of its WM_COMMAND.
enum class ButtonNotice : std::uint16_t {
    None = 0,
    Pressed = 2,  ///< A repeating button went down, or is held.
    Clicked = 3,  ///< Any other button was released inside.
};

/// The bits of a button's state.
enum ButtonState : std::uint32_t {
    buttonPressed = 0x8000,
    buttonRepeats = 0x10000,  ///< From its creation on.
};

/// Milliseconds until a held button first repeats, by the keyboard's delay, 0 to 3.
constexpr unsigned repeatDelay(unsigned keyboardDelay) { return 1000 - 250 * keyboardDelay; }
/// Milliseconds from one repetition to the next, by the keyboard's speed, 0 to 31.
constexpr unsigned repeatInterval(unsigned keyboardSpeed) { return 1000 / (keyboardSpeed + 2); }

class ButtonPress {
public:
    explicit ButtonPress(bool repeats) : state_(repeats ? std::uint32_t{buttonRepeats} : 0) {}

    bool isPressed() const { return (state_ & buttonPressed) != 0; }
    /// Whether a timer has to run from the press on.
    bool repeats() const { return (state_ & buttonRepeats) != 0; }

    /// The mouse button goes down on the button.
    ButtonNotice press();
    /// The timer of a repeating button has run out.
    ButtonNotice repeat() const;
    /// The mouse button goes up; `captured` when the mouse was this button's until now, `inside` when it points at it.
    ButtonNotice release(bool captured, bool inside);
    /// The mouse was taken away.
    void cancel() { state_ &= ~std::uint32_t{buttonPressed}; }

private:
    std::uint32_t state_;
};

}  // namespace calquo
