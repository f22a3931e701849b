// The clipboard, and the memory in which it hands text over.
#include "workarea/foreign_text.h"

#include <algorithm>

#include "widgets/windows_api.h"
#include "workarea/disk_file.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The clipboard, open while this lives, unless another program has it for longer than anybody would wait.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND window) {
        constexpr int tries = 20;
        constexpr DWORD pause = 10;  // milliseconds
        for (int count = 0; count < tries && !isOpen_; ++count) {
            isOpen_ = OpenClipboard(window) != 0;
            if (!isOpen_) {
                Sleep(pause);
            }
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() {
        if (isOpen_) {
            CloseClipboard();
        }
    }

    explicit operator bool() const { return isOpen_; }

private:
    bool isOpen_ = false;
};

/// The characters in a block of the system's memory, up to its end or the first NUL character.
template <typename Character>
std::basic_string<Character> charactersIn(HGLOBAL memory) {
    const auto* const begin = memory == nullptr ? nullptr : static_cast<const Character*>(GlobalLock(memory));
    if (begin == nullptr) {
        return {};
    }
    constexpr std::size_t most = largestFile / sizeof(Character);
    const std::size_t count = std::min<std::size_t>(GlobalSize(memory) / sizeof(Character), most + 1);
    const Character* const end = std::find(begin, begin + count, Character{});
    std::basic_string<Character> characters;
    try {
        if (end == begin + most + 1) {
            throw FileFault{FileFailure::TooLarge, {}};
        }
        characters.assign(begin, end);
    } catch (...) {
        GlobalUnlock(memory);
        throw;
    }
    GlobalUnlock(memory);
    return characters;
}

}  // namespace

std::uint32_t plainTextFormat() { return CF_UNICODETEXT; }

std::uint32_t richTextFormat() {
    static const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
    return format;
}

ForeignText foreignText(const std::function<void*(std::uint32_t format)>& memoryOf, ForeignForm form) {
    ForeignText text;
    text.plain = charactersIn<char16_t>(memoryOf(plainTextFormat()));
    if (form == ForeignForm::Rich || text.plain.empty()) {
        text.rich = charactersIn<char>(memoryOf(richTextFormat()));
    }
    return text;
}

ForeignText clipboardText(WindowHandle window, ForeignForm form) {
    const OpenedClipboard clipboard(window);
    return clipboard ? foreignText([](std::uint32_t format) { return GetClipboardData(format); }, form) : ForeignText{};
}

}  // namespace calquo
