// A picture.
#pragma once

#include "widgets/component.h"

namespace calquo {

class BitMapImage : public Component {
public:
    /// Shows `bitmap` pixel by pixel; `parent` must be a panel.
    BitMapImage(WindowHandle parent, std::uint16_t command, BitmapOwner bitmap);

    /// Shows another picture from the next drawing on; this is not asked for here.
    void show(BitmapOwner bitmap);

    void draw(DrawingContext context, Size size) override;

private:
    static const WidgetClass& widgetClass();

    BitmapOwner bitmap_;
};

}  // namespace calquo
