// UTF-8 and UTF-16, one character at a time.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace calquo {

/// A character at the start of a text, and how many bytes or UTF-16 units it takes.
struct UtfCharacter {
    char32_t code = 0;
    std::size_t length = 1;
};

/// The first character of `bytes`, which must not be empty; none where they are not valid UTF-8: a stray or missing
/// byte, an encoding longer than need be, half of a surrogate pair, or a number above 10FFFF.
std::optional<UtfCharacter> firstUtf8Character(std::string_view bytes);

/// The first character of `units`, which must not be empty; half of a surrogate pair becomes the replacement character.
UtfCharacter firstUtf16Character(std::u16string_view units);

/// Appends a character below 110000 in UTF-8, or in UTF-16.
void appendUtf8(std::string& bytes, char32_t code);
void appendUtf16(std::u16string& units, char32_t code);

}  // namespace calquo
