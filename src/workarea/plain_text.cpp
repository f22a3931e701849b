// Which encoding bytes are in, and the way from and to UTF-16.
#include "workarea/plain_text.h"

#include <algorithm>
#include <array>

#include "workarea/file_fault.h"
#include "workarea/line_breaks.h"
#include "workarea/text_cost.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr std::size_t bytesInUnit = 2;

constexpr char16_t byteOrderMark = 0xFEFF;

/// The characters that Windows-1252 has in place of the C1 controls, 80 to 9F; all others have their own number in
/// Unicode.
constexpr std::size_t firstC1 = 0x80;
constexpr std::array<char16_t, 32> ownCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::string_view markOf(TextEncoding encoding) {
    const auto* const mark = std::ranges::find(byteOrderMarks, encoding, &ByteOrderMark::encoding);
    return mark == byteOrderMarks.end() ? std::string_view() : mark->bytes;
}

bool isUtf16(TextEncoding encoding) {
    return encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto character = firstUtf8Character(bytes);
        if (!character) {
            return false;
        }
        bytes.remove_prefix(character->length);
    }
    return true;
}

std::u16string decodeWindows1252(std::string_view bytes) {
    std::u16string units(bytes.size(), u' ');
    std::transform(bytes.begin(), bytes.end(), units.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isOwn = code >= firstC1 && code < firstC1 + ownCharacters.size();
        return isOwn ? ownCharacters[code - firstC1] : char16_t{code};
    });
    return units;
}

std::string encodeWindows1252(std::u16string_view units) {
    std::string bytes(units.size(), '?');
    std::transform(units.begin(), units.end(), bytes.begin(), [](char16_t unit) {
        const auto* const own = std::find(ownCharacters.begin(), ownCharacters.end(), unit);
        const std::size_t code =
            own != ownCharacters.end() ? firstC1 + static_cast<std::size_t>(own - ownCharacters.begin()) : unit;
        return code <= 0xFF ? static_cast<char>(code) : '?';
    });
    return bytes;
}

TextEncoding encodingOf(std::string_view bytes, const CodePage& systemCodePage) {
    for (const ByteOrderMark& mark : byteOrderMarks) {
        if (bytes.starts_with(mark.bytes) &&
            (isUtf16(mark.encoding) ? bytes.size() % bytesInUnit == 0 : isUtf8(bytes))) {
            return mark.encoding;
        }
    }
    if (isUtf8(bytes)) {
        return TextEncoding::Utf8;
    }
    return systemCodePage.decode(bytes) ? TextEncoding::SystemCodePage : TextEncoding::Windows1252;
}

std::u16string unitsOf(std::string_view bytes, TextEncoding encoding, const CodePage& systemCodePage) {
    if (encoding == TextEncoding::SystemCodePage) {
        return systemCodePage.decode(bytes).value_or(std::u16string());
    }
    if (encoding == TextEncoding::Windows1252) {
        return decodeWindows1252(bytes);
    }
    std::u16string units;
    units.reserve(isUtf16(encoding) ? bytes.size() / bytesInUnit : bytes.size());
    if (isUtf16(encoding)) {
        const std::size_t low = encoding == TextEncoding::Utf16LittleEndian ? 0 : 1;
        for (std::size_t index = 0; index < bytes.size(); index += bytesInUnit) {
            const auto lowByte = static_cast<unsigned char>(bytes[index + low]);
            const auto highByte = static_cast<unsigned char>(bytes[index + 1 - low]);
            units += static_cast<char16_t>(highByte << 8 | lowByte);
        }
    } else {
        while (!bytes.empty()) {
            const UtfCharacter character = firstUtf8Character(bytes).value_or(UtfCharacter{replacement, 1});
            appendUtf16(units, character.code);
            bytes.remove_prefix(character.length);
        }
    }
    return units;
}

/// Calls `takeUnit` for each unit that ends no line and `takeLineEnd` for each line end, with the kind of those that a
/// text may have throughout.
template <typename TakeUnit, typename TakeLineEnd>
void forEachUnit(std::u16string_view units, TakeUnit takeUnit, TakeLineEnd takeLineEnd) {
    for (std::size_t index = 0; index < units.size(); ++index) {
        if (!breaksLine(units[index])) {
            takeUnit(units[index]);
        } else if (units[index] == u'\n') {
            takeLineEnd(std::optional(LineEnd::LineFeed));
        } else if (units[index] != u'\r') {
            takeLineEnd(std::optional<LineEnd>());
        } else if (index + 1 < units.size() && units[index + 1] == u'\n') {
            ++index;
            takeLineEnd(std::optional(LineEnd::CarriageReturnLineFeed));
        } else {
            takeLineEnd(std::optional(LineEnd::CarriageReturn));
        }
    }
}

std::u16string_view charactersOf(LineEnd lineEnd) {
    switch (lineEnd) {
        case LineEnd::LineFeed:
            return u"\n";
        case LineEnd::CarriageReturn:
            return u"\r";
        case LineEnd::CarriageReturnLineFeed:
            break;
    }
    return u"\r\n";
}

std::u16string withLineEnds(std::u16string_view characters, LineEnd lineEnd) {
    std::u16string units;
    units.reserve(characters.size());
    const std::u16string_view end = charactersOf(lineEnd);
    forEachUnit(
        characters, [&](char16_t unit) { units += unit; }, [&](std::optional<LineEnd>) { units += end; });
    return units;
}

/// The line end of all lines; CR LF where they differ or there is none.
LineEnd commonLineEnd(std::u16string_view units) {
    std::array<bool, 3> seen{};
    forEachUnit(
        units, [](char16_t) {},
        [&](std::optional<LineEnd> lineEnd) {
            if (lineEnd) {
                seen[static_cast<std::size_t>(*lineEnd)] = true;
            }
        });
    for (const LineEnd lineEnd : {LineEnd::LineFeed, LineEnd::CarriageReturn}) {
        if (seen[static_cast<std::size_t>(lineEnd)] && std::count(seen.begin(), seen.end(), true) == 1) {
            return lineEnd;
        }
    }
    return LineEnd::CarriageReturnLineFeed;
}

void appendAsUtf8(std::string& bytes, std::u16string_view units) {
    while (!units.empty()) {
        const auto [code, length] = firstUtf16Character(units);
        appendUtf8(bytes, code);
        units.remove_prefix(length);
    }
}

void appendAsUtf16(std::string& bytes, std::u16string_view units, TextEncoding encoding) {
    for (const char16_t unit : units) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        const bool isLowFirst = encoding == TextEncoding::Utf16LittleEndian;
        bytes += isLowFirst ? low : high;
        bytes += isLowFirst ? high : low;
    }
}

}  // namespace

const CodePage& windows1252() {
    static const CodePage codePage{decodeWindows1252, encodeWindows1252};
    return codePage;
}

void refuseTooMuchText(std::u16string_view characters, std::uint64_t mostCost) {
    TextCost cost;
    forEachUnit(
        characters, [&](char16_t unit) { cost.add(unit); }, [&](std::optional<LineEnd>) { cost.endLine(); });
    cost.endLine();
    if (cost.total() > mostCost) {
        throw FileFault{FileFailure::TooMuchText, {}};
    }
}

PlainText decodePlainText(std::string_view bytes, const PlainTextRules& rules) {
    const TextEncoding encoding = encodingOf(bytes, rules.systemCodePage);
    const std::u16string units = unitsOf(bytes.substr(markOf(encoding).size()), encoding, rules.systemCodePage);
    if (units.find(u'\0') != std::u16string::npos) {
        throw FileFault{FileFailure::NotText, {}};
    }
    refuseTooMuchText(units, rules.mostCost);
    return {withLineEnds(units, LineEnd::CarriageReturn), {encoding, commonLineEnd(units)}};
}

std::string encodePlainText(std::u16string_view characters, TextForm form, const CodePage& systemCodePage) {
    const std::u16string units = withLineEnds(characters, form.lineEnd);
    if (form.encoding == TextEncoding::SystemCodePage || form.encoding == TextEncoding::Windows1252) {
        const bool isSystems = form.encoding == TextEncoding::SystemCodePage;
        std::string bytes = (isSystems ? systemCodePage : windows1252()).encode(units);
        if (unitsOf(bytes, encodingOf(bytes, systemCodePage), systemCodePage) == units) {
            return bytes;
        }
        form.encoding = TextEncoding::Utf8;
    }
    if (form.encoding == TextEncoding::Utf8 && units.starts_with(byteOrderMark)) {
        form.encoding = TextEncoding::Utf8WithMark;
    }
    std::string bytes(markOf(form.encoding));
    if (isUtf16(form.encoding)) {
        appendAsUtf16(bytes, units, form.encoding);
    } else {
        appendAsUtf8(bytes, units);
    }
    return bytes;
}

}  // namespace calquo
