// read_work_area: prints the text in the work area of the running Calquo as UTF-8 with "\n" at line ends. Exit status 1
// when no Calquo runs.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>

#include "values/program.h"
#include "widgets/windows_api.h"

namespace {

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(3 * text.size(), '\0');
    const int count = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                          nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(count));
    std::erase(bytes, '\r');
    return bytes;
}

}  // namespace

int main() {
    const HWND window = FindWindowA(calquo::programTitle, nullptr);
    const HWND workArea = FindWindowExA(window, nullptr, "RichEdit20A", nullptr);
    if (window == nullptr || workArea == nullptr) {
        return 1;
    }
    const std::string text = utf8(textOf(workArea));
    _setmode(_fileno(stdout), _O_BINARY);
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 2;
}
