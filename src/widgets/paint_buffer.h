// A picture in memory, painted in peace and then shown at once, so that nothing flickers.
#pragma once

#include "widgets/geometry.h"
#include "widgets/handles.h"

namespace calquo {

class PaintBuffer {
public:
    /// A picture that will be shown in `target`. Raises InternalFault when the system has no memory for it.
    PaintBuffer(DrawingContext target, Size size);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    ~PaintBuffer();

    DrawingContext context() const { return context_.get(); }

    /// Copies the picture to the origin of its target.
    void show() const;

private:
    DrawingContext target_;
    Size size_;
    DrawingContextOwner context_;
    BitmapOwner bitmap_;
    BitmapHandle previous_ = nullptr;  // which the context came with
};

}  // namespace calquo
