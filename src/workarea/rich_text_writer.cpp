// Formats are written as what changes. Only a font and a size cannot be taken back by a word, so they stand in a group
// from their first change on, which ends when one of them is to be as before.
#include "workarea/rich_text_writer.h"

#include "workarea/utf8.h"

namespace calquo {
namespace {

constexpr std::size_t mostFonts = 256;
constexpr std::size_t mostColors = 256;

void appendWord(std::string& text, std::string_view word, std::int32_t number) {
    text += '\\';
    text += word;
    text += std::to_string(number);
}

/// Appends a word that switches something on, or the same with a 0.
void appendSwitch(std::string& text, std::string_view word, bool before, bool after) {
    if (before != after) {
        text += '\\';
        text += word;
        text += after ? "" : "0";
    }
}

std::string_view wordOf(Script script) {
    switch (script) {
        case Script::Super:
            return "\\super";
        case Script::Sub:
            return "\\sub";
        case Script::Normal:
            break;
    }
    return "\\nosupersub";
}

std::string wordsOf(const ParagraphFormat& paragraph) {
    std::string words = "\\pard";
    if (paragraph.alignment != 'l') {
        words += "\\q";
        words += paragraph.alignment;
    }
    for (const auto& [word, indent] :
         {std::pair("li", paragraph.left), std::pair("ri", paragraph.right), std::pair("fi", paragraph.firstLine)}) {
        if (indent != 0) {
            appendWord(words, word, indent);
        }
    }
    return words + ' ';
}

/// The number of `item` in a list that has its own numbers from 1 on; `unset` where there is no more room.
std::int32_t numberIn(std::map<std::int32_t, std::int32_t>& numbers, std::int32_t item, std::size_t most) {
    const auto known = numbers.find(item);
    if (known != numbers.end()) {
        return known->second;
    }
    if (numbers.size() == most) {
        return CharacterFormat::unset;
    }
    return numbers.emplace(item, static_cast<std::int32_t>(numbers.size()) + 1).first->second;
}

/// The items in the order of their numbers.
std::vector<std::int32_t> inOrder(const std::map<std::int32_t, std::int32_t>& numbers) {
    std::vector<std::int32_t> items(numbers.size());
    for (const auto& [item, number] : numbers) {
        items[static_cast<std::size_t>(number) - 1] = item;
    }
    return items;
}

bool takesBack(std::int32_t before, std::int32_t after) {
    return before != CharacterFormat::unset && after == CharacterFormat::unset;
}

}  // namespace

void appendByNumber(std::string& richText, char32_t code) {
    std::u16string units;
    appendUtf16(units, code);
    for (const char16_t unit : units) {
        appendWord(richText, "u", static_cast<std::int16_t>(unit));
        richText += '?';
    }
}

void appendByte(std::string& richText, unsigned char byte) {
    constexpr char digits[] = "0123456789abcdef";
    richText += "\\'";
    richText += digits[byte >> 4];
    richText += digits[byte & 0xF];
}

void RichTextWriter::add(const CharacterFormat& format, std::string_view characters) {
    use(format);
    while (!characters.empty()) {
        const std::size_t plain = std::min(characters.find_first_of("\\{}"), characters.size());
        line_ += characters.substr(0, plain);
        characters.remove_prefix(plain);
        if (!characters.empty()) {
            line_ += '\\';
            line_ += characters.front();
            characters.remove_prefix(1);
        }
    }
}

void RichTextWriter::addTab(const CharacterFormat& format) {
    use(format);
    line_ += "\\tab ";
}

void RichTextWriter::addByte(const CharacterFormat& format, unsigned char byte) {
    use(format);
    appendByte(line_, byte);
}

void RichTextWriter::addCharacter(const CharacterFormat& format, char32_t code) {
    use(format);
    appendByNumber(line_, code);
}

void RichTextWriter::endParagraph(const CharacterFormat& format, const ParagraphFormat& paragraph) {
    use(format);
    line_ += "\\par\n";
    takeLine(paragraph);
}

std::string RichTextWriter::finish(const Header& header, const ParagraphFormat& lastParagraph) {
    takeLine(lastParagraph);
    std::string text = "{\\rtf1\\";
    text += header.characterSet;
    if (header.codePage) {
        appendWord(text, "ansicpg", *header.codePage);
    }
    text += tables(header);
    text += '\n';
    if (header.usual != nullptr) {
        appendWord(text += "\\pard\\ql\\plain\\v0\\nosupersub\\f0", "fs", header.usual->halfPoints);
        text += ' ';
    }
    text += body_;
    text += outside_ ? "}}" : "}";
    return text;
}

/// Lets the next character look as wanted.
void RichTextWriter::use(const CharacterFormat& format) {
    if (format == wanted_) {
        return;
    }
    wanted_ = format;
    CharacterFormat next = format;
    if (next.font != CharacterFormat::unset && numberOfFont(next.font) == CharacterFormat::unset) {
        next.font = CharacterFormat::unset;
    }
    for (std::int32_t* const color : {&next.color, &next.background}) {
        if (*color != CharacterFormat::unset && numberOfColor(*color) == CharacterFormat::unset) {
            *color = CharacterFormat::unset;
        }
    }
    if (outside_ && (takesBack(present_.font, next.font) || takesBack(present_.size, next.size))) {
        line_ += '}';
        present_ = *outside_;
        outside_.reset();
    }
    if (!outside_ && (next.font != CharacterFormat::unset || next.size != CharacterFormat::unset)) {
        line_ += '{';
        outside_ = present_;
    }
    line_ += wordsBetween(present_, next);
    present_ = next;
}

/// Puts the present paragraph after the others, in its format. A paragraph's format must not stand in a group, at the
/// end of which some readers would take it back.
void RichTextWriter::takeLine(const ParagraphFormat& paragraph) {
    std::string_view line = line_;
    if (paragraph != paragraph_) {
        paragraph_ = paragraph;
        if (!outsideAtLine_) {
            body_ += wordsOf(paragraph);
        } else if (line.starts_with('}')) {
            body_ += '}' + wordsOf(paragraph);
            line.remove_prefix(1);
        } else {
            body_ += '}' + wordsOf(paragraph) + '{' + wordsBetween(*outsideAtLine_, presentAtLine_);
        }
    }
    body_ += line;
    line_.clear();
    presentAtLine_ = present_;
    outsideAtLine_ = outside_;
}

std::int32_t RichTextWriter::numberOfFont(std::int32_t font) { return numberIn(fontNumbers_, font, mostFonts); }

std::int32_t RichTextWriter::numberOfColor(std::int32_t color) { return numberIn(colorNumbers_, color, mostColors); }

std::string RichTextWriter::wordsBetween(const CharacterFormat& before, const CharacterFormat& after) {
    std::string words;
    if (before.font != after.font) {
        appendWord(words, "f", numberOfFont(after.font));
    }
    if (before.size != after.size) {
        appendWord(words, "fs", after.size);
    }
    appendSwitch(words, "b", before.bold, after.bold);
    appendSwitch(words, "i", before.italic, after.italic);
    appendSwitch(words, "ul", before.underlined, after.underlined);
    appendSwitch(words, "strike", before.struckOut, after.struckOut);
    if (before.script != after.script) {
        words += wordOf(after.script);
    }
    const auto colorNumber = [&](std::int32_t color) {
        return color == CharacterFormat::unset ? 0 : numberOfColor(color);
    };
    if (before.color != after.color) {
        appendWord(words, "cf", colorNumber(after.color));
    }
    if (before.background != after.background) {
        appendWord(words, "highlight", colorNumber(after.background));
    }
    return words.empty() ? words : words + ' ';
}

std::string RichTextWriter::tables(const Header& header) const {
    std::string text;
    if (!fontNumbers_.empty() || header.usual != nullptr) {
        text += "{\\fonttbl";
        if (header.usual != nullptr) {
            text += "{\\f0\\fnil " + header.usual->font + ";}";
        }
        for (const std::int32_t place : inOrder(fontNumbers_)) {
            const RichTextFont& font = header.fonts[static_cast<std::size_t>(place)];
            appendWord(text += '{', "f", fontNumbers_.at(place));
            text += "\\f" + font.family;
            if (font.charset) {
                appendWord(text, "fcharset", *font.charset);
            }
            if (font.codePage) {
                appendWord(text, "cpg", *font.codePage);
            }
            text += ' ' + font.name + ";}";
        }
        text += '}';
    }
    if (!colorNumbers_.empty()) {
        text += "{\\colortbl;";
        for (const std::int32_t color : inOrder(colorNumbers_)) {
            appendWord(text, "red", color >> 16);
            appendWord(text, "green", color >> 8 & 0xFF);
            appendWord(text, "blue", color & 0xFF);
            text += ';';
        }
        text += '}';
    }
    return text;
}

}  // namespace calquo
