// Reads the descriptions of fonts and colours, each of which ends with a semicolon.
#include "workarea/rich_text_tables.h"

#include <algorithm>
#include <string>
#include <utility>

namespace calquo {
namespace {

using Kind = RichTextToken::Kind;

constexpr std::size_t mostEntries = 4096;
constexpr std::size_t longestFontName = 31;
constexpr std::int32_t largestCharset = 255;
constexpr std::int32_t largestCodePage = 65'535;

bool isWithin(std::optional<std::int32_t> number, std::int32_t largest) {
    return number && *number >= 0 && *number <= largest;
}

}  // namespace

// --- Fonts ----------------------------------------------------------------------------------------------------------

void RichTextFonts::take(WordMeaning meaning, const RichTextToken& token) {
    if (token.kind == Kind::Word) {
        takeWord(meaning, token);
        return;
    }
    const std::size_t fallback = std::exchange(skipsFallback_, false) ? 1 : 0;
    if (token.kind == Kind::Byte && fallback == 0 && *token.number >= ' ') {
        std::string byte;
        appendByte(byte, static_cast<unsigned char>(*token.number));
        appendToName(byte);
    }
    if (token.kind != Kind::Characters) {
        return;
    }
    for (const char& character : token.text.substr(fallback)) {
        if (character == ';') {
            end();
        } else if (character >= ' ' && character < 0x7F) {
            appendToName({&character, 1});
        }
    }
}

void RichTextFonts::takeWord(WordMeaning meaning, const RichTextToken& token) {
    switch (meaning.kind) {
        case WordKind::Font:
            end();
            number_ = token.number.value_or(0);
            break;
        case WordKind::FontFamily:
            font_.family = token.text.substr(1);
            break;
        case WordKind::FontCharset:
            if (isWithin(token.number, largestCharset)) {
                font_.charset = token.number;
            }
            break;
        case WordKind::FontCodePage:
            if (isWithin(token.number, largestCodePage)) {
                font_.codePage = token.number;
            }
            break;
        case WordKind::UnicodeCharacter: {
            const auto unit = static_cast<std::uint16_t>(token.number.value_or(0));
            if (unit >= 0x80) {
                appendToName("\\u" + std::to_string(static_cast<std::int16_t>(unit)) + '?');
            }
            skipsFallback_ = true;
            break;
        }
        default:
            break;
    }
}

void RichTextFonts::end() {
    if (number_ && !font_.name.empty() && fonts_.size() < mostEntries) {
        const auto place = static_cast<std::int32_t>(fonts_.size());
        places_.insert_or_assign(*number_, place);
        if (default_ == number_) {
            defaultPlace_ = place;
        }
        fonts_.push_back(std::move(font_));
    }
    font_ = {};
    number_.reset();
    nameLength_ = 0;
}

std::int32_t RichTextFonts::place(std::int32_t number) const {
    const auto found = places_.find(number);
    return found == places_.end() ? CharacterFormat::unset : found->second;
}

void RichTextFonts::appendToName(std::string_view richText) {
    if (nameLength_ < longestFontName) {
        font_.name += richText;
        ++nameLength_;
    }
}

// --- Colours --------------------------------------------------------------------------------------------------------

void RichTextColors::take(WordMeaning meaning, const RichTextToken& token) {
    constexpr std::int32_t brightest = 255;
    if (token.kind == Kind::Word) {
        const WordKind kind = meaning.kind;
        const bool isPart = kind == WordKind::Red || kind == WordKind::Green || kind == WordKind::Blue;
        if (isPart) {
            const int shift = kind == WordKind::Red ? 16 : kind == WordKind::Green ? 8 : 0;
            const std::int32_t others = std::max(color_, 0) & ~(brightest << shift);
            color_ = others | std::clamp(token.number.value_or(0), 0, brightest) << shift;
        }
    } else if (token.kind == Kind::Characters) {
        for (auto count = std::ranges::count(token.text, ';'); count > 0 && colors_.size() < mostEntries; --count) {
            colors_.push_back(color_);
            color_ = CharacterFormat::unset;
        }
    }
}

std::int32_t RichTextColors::color(std::int32_t number) const {
    const auto place = static_cast<std::size_t>(number);  // a negative number is beyond any table
    return place < colors_.size() ? colors_[place] : CharacterFormat::unset;
}

}  // namespace calquo
