// Any bytes as a file of plain text, and any characters written in any form: what is read and written in the same form
// has the same bytes, and what is written reads as the same characters.
#include "workarea/plain_text.h"

#include "target.h"
#include "workarea/file_fault.h"
#include "workarea/line_breaks.h"
#include "workarea/text_cost.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

/// A code page in which some bytes are no text, and which has few characters of its own.
const CodePage& pickyCodePage() {
    static const CodePage codePage{[](std::string_view bytes) -> std::optional<std::u16string> {
                                       std::u16string units;
                                       for (const char byte : bytes) {
                                           const auto code = static_cast<unsigned char>(byte);
                                           if (code >= 0xF0) {
                                               return std::nullopt;
                                           }
                                           units += static_cast<char16_t>(code < 0x80 ? code : code + 0x380);
                                       }
                                       return units;
                                   },
                                   [](std::u16string_view characters) {
                                       std::string bytes;
                                       for (const char16_t unit : characters) {
                                           bytes += static_cast<char>(unit < 0x80 ? unit : unit - 0x380);
                                       }
                                       return bytes;
                                   }};
    return codePage;
}

/// Whether all lines of bytes in one of the narrow encodings end in the same way, and in one that is written.
bool hasOneLineEnd(std::string_view units) {
    for (const std::string_view other : {"\v", "\f", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
        if (units.find(other) != std::string_view::npos) {
            return false;
        }
    }

    bool seen[3] = {};
    for (std::size_t index = 0; index < units.size(); ++index) {
        const bool isReturn = units[index] == '\r';
        const bool isBoth = isReturn && index + 1 < units.size() && units[index + 1] == '\n';
        if (isReturn || units[index] == '\n') {
            seen[isBoth ? 0 : 1 + static_cast<int>(isReturn)] = true;
        }
        index += isBoth ? 1 : 0;
    }
    return seen[0] + seen[1] + seen[2] <= 1;
}

/// Its lines end with "\r", and what UTF-8 lacks, half of a surrogate pair, is replaced where `isUtf8`.
std::u16string asRead(std::u16string_view characters, bool isUtf8) {
    std::u16string read;
    const auto isHalf = [&](std::size_t index, char16_t first) {
        return index < characters.size() && (characters[index] & 0xFC00) == first;
    };
    for (std::size_t index = 0; index < characters.size(); ++index) {
        const char16_t unit = characters[index];
        const bool isPaired = (isHalf(index, 0xD800) && isHalf(index + 1, 0xDC00)) ||
                              (isHalf(index, 0xDC00) && index > 0 && isHalf(index - 1, 0xD800));
        if (breaksLine(unit)) {
            const bool isSecond = unit == u'\n' && index > 0 && characters[index - 1] == u'\r';
            read += isSecond ? u"" : u"\r";
        } else {
            read += isUtf8 && (unit & 0xF800) == 0xD800 && !isPaired ? u'\xFFFD' : unit;
        }
    }
    return read;
}

void checkBytes(std::string_view bytes, const CodePage& codePage) {
    try {
        const PlainText text = decodePlainText(bytes, {codePage, mostInWine});
        require(text.characters.find_first_of(std::u16string_view(u"\n\0", 2)) == std::u16string::npos,
                "a line ends in another way, or there is a NUL character");
        const std::string again = encodePlainText(text.characters, text.form, codePage);
        const PlainText reread = decodePlainText(again, {codePage, mostInWine});
        require(reread.characters == text.characters, "other characters are read again");
        const bool isWide =
            text.form.encoding == TextEncoding::Utf16LittleEndian || text.form.encoding == TextEncoding::Utf16BigEndian;
        if (!isWide && hasOneLineEnd(bytes)) {
            require(again == bytes, "other bytes are written");
        }
    } catch (const FileFault& fault) {
        require(fault.failure == FileFailure::NotText || fault.failure == FileFailure::TooMuchText, "another failure");
    }
}

void checkCharacters(std::u16string characters, TextForm form, const CodePage& codePage) {
    std::erase(characters, u'\0');
    const std::string bytes = encodePlainText(characters, form, codePage);
    const PlainText text = decodePlainText(bytes, {codePage, mostInWine});
    const bool isUtf8 = text.form.encoding == TextEncoding::Utf8 || text.form.encoding == TextEncoding::Utf8WithMark;
    require(text.characters == asRead(characters, isUtf8), "other characters are read than were written");
    for (std::string_view rest = bytes; isUtf8 && !rest.empty();) {
        const auto character = firstUtf8Character(rest);
        require(character.has_value(), "invalid UTF-8 is written");
        rest.remove_prefix(character->length);
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    const CodePage& codePage = reader.byte() % 2 == 0 ? windows1252() : pickyCodePage();
    const TextForm form{static_cast<TextEncoding>(reader.byte() % 6), static_cast<LineEnd>(reader.byte() % 3)};
    const std::string bytes = reader.text();
    checkBytes(bytes, codePage);
    std::u16string characters;
    while (!reader.isAtEnd()) {
        characters += static_cast<char16_t>(reader.number(2));
    }
    checkCharacters(characters, form, codePage);
}

const Target target("plain_text", check);

}  // namespace
}  // namespace calquo
