// A picture of pixels in memory, painted in peace and then shown at once, so that nothing flickers.
#pragma once

#include <cstdint>

#include "widgets/color.h"
#include "widgets/geometry.h"
#include "widgets/handles.h"
#include "widgets/shape_coverage.h"

namespace calquo {

class PaintBuffer {
public:
    /// Raises InternalFault when the system has no memory for the picture.
    explicit PaintBuffer(Size size);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    ~PaintBuffer();

    DrawingContext context() const { return context_.get(); }

    /// Lays `color` over the pixels as thick as `coverage` says, with its first pixel at `place`; what does not fit is
    /// left out.
    void lay(const Coverage& coverage, Point place, Color color);

    /// Copies the picture to the origin of `target`.
    void show(DrawingContext target) const;

private:
    Size size_;
    DrawingContextOwner context_;
    BitmapOwner bitmap_;
    std::uint32_t* pixels_ = nullptr;  // blue in the lowest byte, then green, then red; row by row from the top
    BitmapHandle previous_ = nullptr;  // which the context came with
};

}  // namespace calquo
