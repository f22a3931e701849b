// The messages of text_control.h.
#include "widgets/text_control.h"

#include "widgets/windows_api.h"

namespace calquo {

std::int32_t lengthOfText(WindowHandle control) {
    constexpr UINT unicodeCodePage = 1200;
    GETTEXTLENGTHEX wanted{GTL_NUMCHARS | GTL_PRECISE, unicodeCodePage};
    return static_cast<std::int32_t>(SendMessageW(control, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted), 0));
}

PaintingPause::PaintingPause(WindowHandle control) : control_(control) {
    SendMessageW(control_, WM_SETREDRAW, FALSE, 0);
}

PaintingPause::~PaintingPause() {
    SendMessageW(control_, EM_SCROLLCARET, 0, 0);
    SendMessageW(control_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(control_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_NOERASE);
}

}  // namespace calquo
