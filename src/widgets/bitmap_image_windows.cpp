// The picture's window, which its panel asks to be drawn.
#include "widgets/bitmap_image.h"

#include "widgets/windows_api.h"

namespace calquo {

const Component::WidgetClass& BitMapImage::widgetClass() {
    static const WidgetClass registered = registerClass(L"STATIC", L"CalquoImage");
    return registered;
}

BitMapImage::BitMapImage(WindowHandle parent, std::uint16_t command, BitmapOwner bitmap)
    : Component(widgetClass(), {parent, command, SS_OWNERDRAW, {}}), bitmap_(std::move(bitmap)) {
    BITMAP description{};
    GetObjectW(bitmap_.get(), sizeof description, &description);
    setPreferredSize({description.bmWidth, description.bmHeight});
}

void BitMapImage::show(BitmapOwner bitmap) { bitmap_ = std::move(bitmap); }

void BitMapImage::draw(DrawingContext context, Size size) {
    const DrawingContextOwner source(CreateCompatibleDC(context));
    const HGDIOBJ previous = SelectObject(source.get(), bitmap_.get());
    BitBlt(context, 0, 0, size.width, size.height, source.get(), 0, 0, SRCCOPY);
    SelectObject(source.get(), previous);
}

}  // namespace calquo
