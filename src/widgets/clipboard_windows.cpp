// The system's clipboard.
#include "widgets/clipboard.h"

#include <cstring>

#include "widgets/windows_api.h"

namespace calquo {
namespace {

/// Memory that the clipboard can have, with a copy of some bytes in it; null where there is none.
HGLOBAL memoryWith(const void* bytes, std::size_t count) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, count);
    if (memory != nullptr) {
        std::memcpy(GlobalLock(memory), bytes, count);
        GlobalUnlock(memory);
    }
    return memory;
}

/// Gives the open clipboard memory in one format.
bool give(UINT format, HGLOBAL& memory) {
    const bool isTaken = SetClipboardData(format, memory) != nullptr;
    if (isTaken) {
        memory = nullptr;  // it is the clipboard's
    }
    return isTaken;
}

}  // namespace

bool copyToClipboard(WindowHandle owner, const std::wstring& text, const std::string& richText) {
    HGLOBAL plain = memoryWith(text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    HGLOBAL rich = richText.empty() ? nullptr : memoryWith(richText.c_str(), richText.size() + 1);
    const bool isThere = plain != nullptr && (rich != nullptr || richText.empty());
    bool isCopied = isThere && OpenClipboard(owner) != 0;
    if (isCopied) {
        EmptyClipboard();
        isCopied = give(CF_UNICODETEXT, plain) &&
                   (rich == nullptr || give(RegisterClipboardFormatW(L"Rich Text Format"), rich));
        CloseClipboard();
    }
    GlobalFree(plain);
    GlobalFree(rich);
    return isCopied;
}

}  // namespace calquo
