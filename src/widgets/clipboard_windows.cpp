// The system's clipboard.
#include "widgets/clipboard.h"

#include <cstring>

#include "widgets/windows_api.h"

namespace calquo {

bool copyToClipboard(WindowHandle owner, const std::wstring& text) {
    if (OpenClipboard(owner) == 0) {
        return false;
    }
    bool isCopied = false;
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
        std::memcpy(GlobalLock(memory), text.c_str(), bytes);
        GlobalUnlock(memory);
        EmptyClipboard();
        isCopied = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
        if (!isCopied) {
            GlobalFree(memory);  // else it is the clipboard's
        }
    }
    CloseClipboard();
    return isCopied;
}

}  // namespace calquo
