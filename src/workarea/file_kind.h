// Which kind of file a name stands for.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace calquo {

enum class FileKind : std::uint8_t { RichText, PlainText };

/// Rich text when `name` ends with ".rtf", whatever the case of its letters; plain text for any other name.
constexpr FileKind fileKindOf(std::wstring_view name) {
    constexpr std::wstring_view ending = L".rtf";
    const auto sameLetter = [](wchar_t one, wchar_t lower) {
        return one == lower || (lower >= L'a' && lower <= L'z' && one == lower - (L'a' - L'A'));
    };
    const bool isRich =
        name.size() >= ending.size() && std::equal(ending.begin(), ending.end(), name.end() - ending.size(),
                                                   [&](wchar_t lower, wchar_t one) { return sameLetter(one, lower); });
    return isRich ? FileKind::RichText : FileKind::PlainText;
}

}  // namespace calquo
