// The buffer's bitmap, whose pixels can be reached both by the system and by us.
#include "widgets/paint_buffer.h"

#include "values/errors.h"
#include "widgets/windows_api.h"

namespace calquo {
namespace {

BITMAPINFO describe(Size size) {
    BITMAPINFO description{};
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = size.width;
    description.bmiHeader.biHeight = -size.height;  // from the top
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    description.bmiHeader.biCompression = BI_RGB;
    return description;
}

Color colorOf(std::uint32_t pixel) {
    return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
            static_cast<std::uint8_t>(pixel)};
}

std::uint32_t pixelOf(Color color) {
    return std::uint32_t{color.red} << 16 | std::uint32_t{color.green} << 8 | color.blue;
}

}  // namespace

PaintBuffer::PaintBuffer(Size size) : size_(size), context_(CreateCompatibleDC(nullptr)) {
    const BITMAPINFO description = describe(size);
    void* pixels = nullptr;
    bitmap_ = BitmapOwner(CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!context_ || !bitmap_) {
        raise(ErrorCode::InternalFault);
    }
    pixels_ = static_cast<std::uint32_t*>(pixels);
    previous_ = static_cast<HBITMAP>(SelectObject(context(), bitmap_.get()));
}

PaintBuffer::~PaintBuffer() { SelectObject(context(), previous_); }

void PaintBuffer::lay(const Coverage& coverage, Point place, Color color) {
    GdiFlush();  // the system may still be painting
    auto alpha = coverage.alpha.begin();
    for (int row = 0; row < coverage.size.height; ++row) {
        for (int column = 0; column < coverage.size.width; ++column) {
            const int percent = *alpha++ * 100 / 255;
            const int left = place.left + column;
            const int top = place.top + row;
            if (left >= 0 && top >= 0 && left < size_.width && top < size_.height) {
                std::uint32_t& pixel = pixels_[top * size_.width + left];
                pixel = pixelOf(mixed(colorOf(pixel), color, percent));
            }
        }
    }
}

void PaintBuffer::show(DrawingContext target) const {
    BitBlt(target, 0, 0, size_.width, size_.height, context(), 0, 0, SRCCOPY);
}

}  // namespace calquo
