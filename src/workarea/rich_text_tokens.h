// Rich text (RTF) as its tokens: braces, control words, control symbols, bytes written in hexadecimal, and characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace calquo {

/// The longest control word that the format allows.
inline constexpr std::size_t longestControlWord = 32;

struct RichTextToken {
    enum class Kind : std::uint8_t {
        GroupBegin,
        GroupEnd,
        Word,        ///< A control word: `text` without its backslash, `number` if it has one.
        Symbol,      ///< A backslash with the one character in `text`, which is no letter.
        Byte,        ///< The one byte in `number`, written as \'hh.
        Characters,  ///< One or more, as they are. Neither the ends of the file's own lines nor NUL characters.
    };

    Kind kind = Kind::Characters;
    std::string_view text;
    std::optional<std::int32_t> number;  ///< At the end of the range where it is beyond.
};

/// Reads the tokens of a text one after another, each in time proportional to its length. A control word longer than
/// the longest is read as a word that nobody knows, with the empty text.
class RichTextTokens {
public:
    explicit RichTextTokens(std::string_view text) : text_(text) {}

    /// The next token; nothing at the end of the text, also where the text ends within a token.
    std::optional<RichTextToken> next();

    /// Leaves out a number of bytes, which may look like anything. False when fewer are left.
    bool skip(std::size_t count);

private:
    std::optional<RichTextToken> takeControl();
    RichTextToken takeWord();
    std::optional<RichTextToken> takeByte();

    std::string_view text_;
    std::size_t place_ = 0;
};

}  // namespace calquo
