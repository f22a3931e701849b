// Asks the system for its fonts.
#include "widgets/fonts.h"

#include <algorithm>
#include <cwchar>

#include "widgets/windows_api.h"

namespace calquo {
namespace {

int CALLBACK noteFont(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

bool isInstalled(const wchar_t* name) {
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::wcsncpy(wanted.lfFaceName, name, LF_FACESIZE - 1);
    bool found = false;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &wanted, noteFont, reinterpret_cast<LPARAM>(&found), 0);
    ReleaseDC(nullptr, screen);
    return found;
}

/// Measures text drawn into `area` as the flags say.
RECT measured(FontHandle font, const std::wstring& text, RECT area, UINT flags) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ previous = SelectObject(screen, font);
    DrawTextW(screen, text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | flags);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return area;
}

}  // namespace

const wchar_t* installedFont(std::span<const wchar_t* const> names) {
    const auto font = std::find_if(names.begin(), names.end(), isInstalled);
    return font == names.end() ? names.back() : *font;
}

Size extentOf(FontHandle font, const std::wstring& text) {
    const RECT area = measured(font, text, {}, DT_SINGLELINE);
    return {area.right, area.bottom};
}

int brokenHeight(FontHandle font, const std::wstring& text, int width) {
    return static_cast<int>(measured(font, text, {0, 0, width, 0}, DT_WORDBREAK | DT_NOPREFIX).bottom);
}

}  // namespace calquo
