// The system's own conversion.
#include "widgets/wide_text.h"

#include "widgets/windows_api.h"

namespace calquo {

std::wstring wideText(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring units(text.size(), L'\0');  // never more units than bytes
    const int written = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, units.data(), length);
    units.resize(static_cast<std::size_t>(written));
    return units;
}

std::string utf8Text(std::wstring_view units) {
    constexpr std::size_t mostBytes = 3;  // of one unit
    const int length = static_cast<int>(units.size());
    std::string text(units.size() * mostBytes, '\0');
    const int written = WideCharToMultiByte(CP_UTF8, 0, units.data(), length, text.data(),
                                            static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<std::size_t>(written));
    return text;
}

}  // namespace calquo
