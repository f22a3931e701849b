// The system's pairs of calls around painting.
#include "widgets/painting.h"

#include "values/errors.h"
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

BufferedPainting::BufferedPainting(WindowHandle window, WindowHandle parent)
    : painting_(window),
      size_(clientSize(window)),
      context_(CreateCompatibleDC(painting_.context())),
      bitmap_(CreateCompatibleBitmap(painting_.context(), size_.width, size_.height)),
      selection_(context(), bitmap_.get()) {
    if (!context_ || !bitmap_) {
        raise(ErrorCode::InternalFault);
    }
    const LRESULT background =
        SendMessageW(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context()), reinterpret_cast<LPARAM>(window));
    const RECT whole{0, 0, size_.width, size_.height};
    FillRect(context(), &whole, reinterpret_cast<HBRUSH>(background));
}

void BufferedPainting::show() const {
    BitBlt(painting_.context(), 0, 0, size_.width, size_.height, context(), 0, 0, SRCCOPY);
}

}  // namespace calquo
