// Code pages by the system's own tables.
#include "workarea/code_page.h"

#include "widgets/windows_api.h"

namespace calquo {
namespace {

constexpr unsigned western = 1252;

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::optional<std::u16string> decode(unsigned number, std::string_view bytes) {
    const auto count = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), count, nullptr, 0);
    if (length == 0) {
        return std::nullopt;
    }
    std::u16string units(static_cast<std::size_t>(length), u' ');
    MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), count, reinterpret_cast<wchar_t*>(units.data()),
                        length);
    return units;
}

std::string encode(unsigned number, std::u16string_view units) {
    const auto* const characters = reinterpret_cast<const wchar_t*>(units.data());
    const auto count = static_cast<int>(units.size());
    const int length =
        WideCharToMultiByte(number, WC_NO_BEST_FIT_CHARS, characters, count, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '?');
    WideCharToMultiByte(number, WC_NO_BEST_FIT_CHARS, characters, count, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

}  // namespace

CodePage codePageOf(unsigned number) {
    return {[number](std::string_view bytes) { return decode(number, bytes); },
            [number](std::u16string_view units) { return encode(number, units); }};
}

const CodePage& systemCodePage() {
    static const unsigned number = GetACP();
    static const CodePage codePage = number == western || number == CP_UTF8 ? windows1252() : codePageOf(number);
    return codePage;
}

}  // namespace calquo
