// What a text costs the control that shows it: an upper bound, so that no file takes all of the memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace calquo {

/// Counts a text in units of 5 kilobytes (2.5 in 32-bit programs), of which Wine's control takes nearly one for a line,
/// one for six changes between letters, digits and marks in it, and 0.3 kilobytes for the square of each 64 characters
/// of a line that it wraps, which also costs it some 30 microseconds.
class TextCost {
public:
    /// A character, which may be more than one unit of the text.
    void add(char32_t code, std::uint64_t units = 1) {
        length_ += units;
        const Kind kind = kindOf(code);
        if (kind != Kind::Blank && kind != kind_) {
            ++changes_;
            kind_ = kind;
        }
    }
    void endLine() {
        total_ = total() + 1;
        length_ = changes_ = 0;
        kind_ = Kind::Blank;
    }
    /// With what the present line costs so far.
    std::uint64_t total() const {
        const std::uint64_t rows = length_ / 64;
        return total_ + changes_ / 6 + rows * rows / 8;
    }

private:
    enum class Kind : std::uint8_t { Blank, Letter, Digit, Mark };

    static constexpr Kind kindOf(char32_t code) {
        constexpr char32_t endOfAscii = 0x80, lowerCase = 0x20;
        if (code == U' ') {
            return Kind::Blank;
        }
        if (code >= U'0' && code <= U'9') {
            return Kind::Digit;
        }
        const char32_t letter = code | lowerCase;
        return code >= endOfAscii || (letter >= U'a' && letter <= U'z') ? Kind::Letter : Kind::Mark;
    }

    std::uint64_t length_ = 0;
    std::uint64_t changes_ = 0;
    Kind kind_ = Kind::Blank;  ///< Of the last character that is none.
    std::uint64_t total_ = 0;  ///< Of the lines that have ended.
};

/// The most that Wine's control shows within minutes, and in the memory that a program of this width may have.
inline constexpr std::uint64_t mostInWine = sizeof(void*) == 8 ? 2'500'000 : 400'000;

/// The most that the control of this machine shows: for the system's own, whatever fits a file.
std::uint64_t mostTextCost();

}  // namespace calquo
