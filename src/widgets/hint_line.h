// A line that tells the user something, over the lower edge of another part of the window. It never has the focus.
#pragma once

#include <string>

#include "widgets/component.h"

namespace calquo {

class HintLine : public Component {
public:
    /// A hidden line, before everything else on `parent`.
    explicit HintLine(WindowHandle parent);

    /// Shows a text over the lower edge of an area of the parent, as high as it needs at that width.
    void tell(const std::wstring& text, const Rectangle& area);

protected:
    bool onPaint() override;

private:
    static const WidgetClass& widgetClass();

    std::wstring hint_;
};

}  // namespace calquo
