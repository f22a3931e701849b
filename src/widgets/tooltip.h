// The small window that describes a widget while the mouse rests on it.
#pragma once

#include <string_view>

#include "widgets/component.h"

namespace calquo {

/// A tooltip that shows `description` over the whole of the window `widget`; empty where the system cannot make one.
/// It watches the messages of the window from then on; `first` is the one that came before.
WindowOwner makeTooltip(WindowHandle widget, std::string_view description, const Message& first);

}  // namespace calquo
