// The steps of a press.
#include "widgets/button_press.h"

namespace calquo {

ButtonNotice ButtonPress::press() {
    state_ |= buttonPressed;
    return repeats() ? ButtonNotice::Pressed : ButtonNotice::None;
}

ButtonNotice ButtonPress::repeat() const {
    return repeats() && isPressed() ? ButtonNotice::Pressed : ButtonNotice::None;
}

ButtonNotice ButtonPress::release(bool captured, bool inside) {
    cancel();
    return captured && inside && !repeats() ? ButtonNotice::Clicked : ButtonNotice::None;
}

}  // namespace calquo
