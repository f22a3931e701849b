// What a text costs the control that shows it: an upper bound, so that no file makes the program stand still.
#pragma once

#include <cstddef>
#include <cstdint>

namespace calquo {

/// Counts a text in short lines. A line of n characters counts 1 + (n / 64)^2: controls go over a long line once more
/// for every row that they wrap off it, and some keep what is left each time.
class TextCost {
public:
    /// The most that is shown. A short line takes some 30 microseconds and 5 kilobytes (2.5 in 32-bit programs) in the
    /// slowest control that was measured, Wine's.
    static constexpr std::uint64_t most = sizeof(void*) == 8 ? 1'000'000 : 400'000;

    void addCharacter() { ++length_; }
    void endLine() {
        const std::uint64_t rows = length_ / 64;
        total_ += 1 + rows * rows;
        length_ = 0;
    }
    bool isTooMuch() const { return total_ > most; }

private:
    std::uint64_t length_ = 0;
    std::uint64_t total_ = 0;
};

}  // namespace calquo
