// The small window that describes a widget while the mouse rests on it.
#pragma once

#include <string_view>

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

/// A tooltip that shows `description` over the whole of the window `widget`; empty where the system cannot make one.
/// It watches the messages of the window from then on; `mouse` is where the mouse has come to in the window before.
WindowOwner makeTooltip(WindowHandle widget, std::string_view description, Point mouse);

}  // namespace calquo
