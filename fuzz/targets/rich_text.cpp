// Any bytes as rich text: what passes is well-formed for a strict reader, passes again unchanged, and has the text that
// is text; and what the control writes becomes pure ASCII.
#include "workarea/rich_text.h"

#include <algorithm>

#include "rich_text_checker.h"
#include "target.h"
#include "workarea/file_fault.h"
#include "workarea/rich_text_filter.h"
#include "workarea/rich_text_plain.h"
#include "workarea/text_cost.h"
#include "workarea/utf8.h"

namespace calquo {
namespace {

/// What passes, and the characters that it shows; nothing for what is refused for one of the reasons that there are.
std::string cleaned(const std::string& richText, LastLineEnd lastLineEnd) {
    try {
        return cleanRichText(richText, mostInWine, lastLineEnd);
    } catch (const FileFault& fault) {
        const bool isKnown = fault.failure == FileFailure::NotRichText || fault.failure == FileFailure::CutOff ||
                             fault.failure == FileFailure::TooMuchText;
        require(isKnown, "refused for another reason");
        return {};
    }
}

/// The plain text of a rich text is what the strict reader sees, with other characters in place of bytes alone.
void checkPlainText(const std::string& richText, std::u16string_view shown) {
    const std::string plain = plainTextOf(richText, mostInWine);
    std::u16string units;
    for (std::string_view rest = plain; !rest.empty();) {
        const auto character = firstUtf8Character(rest);
        require(character.has_value(), "a plain text that is no UTF-8");
        appendUtf16(units, character->code);
        rest.remove_prefix(character->length);
    }
    require(std::ranges::equal(
                units, shown,
                [](char16_t one, char16_t other) { return one == other || (other >= 0x80 && other <= 0xFF); }),
            "the plain text is another");
}

void checkPassing(const std::string& richText) {
    const std::string kept = cleaned(richText, LastLineEnd::Kept);
    if (kept.empty()) {
        return;
    }
    std::u16string shown = shownByStrictReader(kept);
    require(cleanRichText(kept, mostInWine, LastLineEnd::Kept) == kept, "what has passed does not pass unchanged");
    const std::u16string shorter = shownByStrictReader(cleaned(richText, LastLineEnd::Dropped));
    if (shown.ends_with(u'\n')) {
        shown.pop_back();
    }
    require(shorter == shown, "without its last line end it is another text");
    checkPlainText(richText, shown);
}

/// Text between things that are no text arrives as it is.
void checkText(std::string_view text, std::string_view other) {
    std::string junk(other);
    std::erase_if(junk, [](char one) { return one == '{' || one == '}' || one == '\\'; });
    const std::string things[] = {"{\\*\\x" + junk + "}",
                                  "{\\pict " + junk + "}",
                                  "{\\object{\\*\\objdata " + junk + "}}",
                                  "{\\field{\\*\\fldinst " + junk + "}}",
                                  "\\unknown7 ",
                                  "{\\v " + junk + "}"};
    std::string richText = "{\\rtf1\\ansi ";
    std::u16string expected;
    std::size_t index = 0;
    for (const char one : text) {
        richText += things[index++ % std::size(things)];
        if (one >= ' ' && one <= '~') {
            richText += one == '\\' || one == '{' || one == '}' ? "\\" : "";
            richText += one;
            expected += static_cast<char16_t>(one);
        } else if (one == '\n') {
            richText += "\\par ";
            expected += u'\n';
        } else if (one < 0) {
            const int unit = 0x3000 + (one & 0x7F);
            richText += "\\u" + std::to_string(unit) + "?";
            expected += static_cast<char16_t>(unit);
        }
    }
    require(shownByStrictReader(cleanRichText(richText + "}", mostInWine, LastLineEnd::Kept)) == expected,
            "a text arrives as another");
}

void checkWriting(const std::string& controlText) {
    const std::string written = richTextToWrite(controlText);
    require(std::ranges::all_of(written, [](char one) { return one >= 0; }), "a byte beyond ASCII is written");
    require(richTextToWrite(written) == written, "what is written does not stay");
}

void check(FuzzInput input) {
    InputReader reader(input);
    const std::uint8_t kind = reader.byte();
    if (kind % 4 == 3) {
        const std::string text = reader.textUntil('|');
        checkText(text, reader.text());
        return;
    }
    const std::string bytes = reader.text();
    const std::string richText =
        kind % 4 == 0 ? bytes : "{\\rtf1\\ansi\\uc" + std::to_string(kind / 4 % 3) + ' ' + bytes + '}';
    checkPassing(richText);
    checkWriting(kind % 4 == 2 ? "{\\urtf1" + bytes : richText);
}

const Target target("rich_text", check);

}  // namespace
}  // namespace calquo
