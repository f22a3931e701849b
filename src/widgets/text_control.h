// What the files of the text area share about its rich edit control.
#pragma once

#include <cstdint>

#include "widgets/handles.h"

namespace calquo {

/// The number of UTF-16 units in the control's text; a line end counts as one.
std::int32_t lengthOfText(WindowHandle control);

/// While it lives, the control does not paint what happens to it; then it shows the caret.
class PaintingPause {
public:
    explicit PaintingPause(WindowHandle control);
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;
    ~PaintingPause();

private:
    WindowHandle control_;
};

}  // namespace calquo
