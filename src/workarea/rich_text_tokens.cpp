// The bytes of which tokens of rich text are made.
#include "workarea/rich_text_tokens.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "engine/characters.h"

namespace calquo {
namespace {

using enum RichTextToken::Kind;

constexpr std::string_view ignored("\r\n\0", 3);

/// Whether a byte stands for itself.
constexpr bool isCharacter(char byte) {
    return byte != '{' && byte != '}' && byte != '\\' && byte != '\r' && byte != '\n' && byte != '\0';
}

/// The number that the digits say, with its sign; the end of the range for one beyond it.
std::int32_t valueOf(std::string_view number) {
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int32_t>;
        return number.front() == '-' ? Limits::min() : Limits::max();
    }
    return value;
}

}  // namespace

std::optional<RichTextToken> RichTextTokens::next() {
    place_ = std::min(text_.find_first_not_of(ignored, place_), text_.size());
    if (place_ == text_.size()) {
        return std::nullopt;
    }
    const std::size_t begin = place_++;
    switch (text_[begin]) {
        case '{':
            return RichTextToken{GroupBegin, text_.substr(begin, 1), {}};
        case '}':
            return RichTextToken{GroupEnd, text_.substr(begin, 1), {}};
        case '\\':
            return takeControl();
        default:
            while (place_ < text_.size() && isCharacter(text_[place_])) {
                ++place_;
            }
            return RichTextToken{Characters, text_.substr(begin, place_ - begin), {}};
    }
}

bool RichTextTokens::skip(std::size_t count) {
    const bool isThere = count <= text_.size() - place_;
    place_ += isThere ? count : 0;
    return isThere;
}

std::optional<RichTextToken> RichTextTokens::takeControl() {
    if (place_ == text_.size()) {
        return std::nullopt;
    }
    if (isLetter(text_[place_])) {
        return takeWord();
    }
    if (text_[place_] == '\'') {
        return takeByte();
    }
    return RichTextToken{Symbol, text_.substr(place_++, 1), {}};
}

RichTextToken RichTextTokens::takeWord() {
    const auto takeWhile = [&](auto fits) {
        const std::size_t begin = place_;
        while (place_ < text_.size() && fits(text_[place_])) {
            ++place_;
        }
        return text_.substr(begin, place_ - begin);
    };
    RichTextToken token{Word, takeWhile([](char byte) { return isLetter(byte); }), {}};
    if (token.text.size() > longestControlWord) {
        token.text = {};
    }
    const std::size_t begin = place_;
    place_ += place_ + 1 < text_.size() && text_[place_] == '-' && isDecimalDigit(text_[place_ + 1]) ? 1 : 0;
    if (!takeWhile([](char byte) { return isDecimalDigit(byte); }).empty()) {
        token.number = valueOf(text_.substr(begin, place_ - begin));
    }
    place_ += place_ < text_.size() && text_[place_] == ' ' ? 1 : 0;
    return token;
}

/// A byte without two hexadecimal digits is a symbol, which nobody knows.
std::optional<RichTextToken> RichTextTokens::takeByte() {
    constexpr std::uint32_t sixteen = 16;
    const std::uint32_t high = digitValue(characterAt(text_, place_ + 1));
    const std::uint32_t low = digitValue(characterAt(text_, place_ + 2));
    if (high >= sixteen || low >= sixteen) {
        return RichTextToken{Symbol, text_.substr(place_++, 1), {}};
    }
    place_ += 3;
    return RichTextToken{Byte, text_.substr(place_ - 3, 3), static_cast<std::int32_t>(high * sixteen + low)};
}

}  // namespace calquo
