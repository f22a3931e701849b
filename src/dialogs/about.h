// The window that says what the program is: its picture, its name, its version and its maker's site.
#pragma once

#include <memory>

#include "dialogs/dialog_window.h"
#include "widgets/bitmap_image.h"
#include "widgets/panel.h"

namespace calquo {

class About : public DialogWindow {
public:
    About() = default;
    ~About() override;

    /// Shows the window in the middle of `parent`, a window or a control, or brings it to the front. Returns the
    /// window, which is to get the focus back.
    WindowHandle open(WindowHandle parent);

protected:
    Size build() override;
    void onGone() override;
    void onSystemColors() override;
    WindowHandle focusTarget() const override;

private:
    std::unique_ptr<Panel> panel_;
    BitMapImage* picture_ = nullptr;    ///< On the panel, as the next.
    const Component* close_ = nullptr;  ///< The button.
};

}  // namespace calquo
