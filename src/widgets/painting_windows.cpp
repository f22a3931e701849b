// The system's pairs of calls around painting.
#include "widgets/painting.h"

#include "widgets/windows_api.h"

namespace calquo {

Size clientSize(WindowHandle window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

Painting::Painting(WindowHandle window)
    : window_(window), painting_(std::make_unique<PAINTSTRUCT>()), context_(BeginPaint(window, painting_.get())) {}

Painting::~Painting() { EndPaint(window_, painting_.get()); }

Selection::Selection(DrawingContext context, void* object)
    : context_(context), previous_(SelectObject(context, object)) {}

Selection::~Selection() { SelectObject(context_, previous_); }

}  // namespace calquo
