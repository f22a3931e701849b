// Characters one by one.
#include "workarea/language_text.h"

#include <algorithm>

namespace calquo {
namespace {

constexpr char foreignCharacter = '\x7F';

}  // namespace

std::string languageText(std::wstring_view text) {
    constexpr wchar_t beyondLatin1 = 0x100;
    std::string characters(text.size(), foreignCharacter);
    std::transform(text.begin(), text.end(), characters.begin(),
                   [](wchar_t unit) { return unit < beyondLatin1 ? static_cast<char>(unit) : foreignCharacter; });
    return characters;
}

std::wstring controlText(std::string_view text) {
    std::wstring wide(text.size(), L' ');
    std::transform(text.begin(), text.end(), wide.begin(),
                   [](char character) { return static_cast<wchar_t>(static_cast<unsigned char>(character)); });
    return wide;
}

}  // namespace calquo
