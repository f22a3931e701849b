// The buffer's bitmap.
#include "widgets/paint_buffer.h"

#include "values/errors.h"
#include "widgets/windows_api.h"

namespace calquo {

PaintBuffer::PaintBuffer(DrawingContext target, Size size)
    : target_(target),
      size_(size),
      context_(CreateCompatibleDC(target)),
      bitmap_(CreateCompatibleBitmap(target, size.width, size.height)) {
    if (!context_ || !bitmap_) {
        raise(ErrorCode::InternalFault);
    }
    previous_ = static_cast<HBITMAP>(SelectObject(context(), bitmap_.get()));
}

PaintBuffer::~PaintBuffer() { SelectObject(context(), previous_); }

void PaintBuffer::show() const { BitBlt(target_, 0, 0, size_.width, size_.height, context(), 0, 0, SRCCOPY); }

}  // namespace calquo
