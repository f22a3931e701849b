// What a text costs the control that shows it: an upper bound, so that no file takes all of the memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace calquo {

/// Counts a text in short lines of memory. Wine's control takes some 5 kilobytes for a line (2.5 in 32-bit programs),
/// and 0.3 kilobytes for the square of each 64 characters of a line that it wraps, which also costs it some 30
/// microseconds.
class TextCost {
public:
    void addCharacters(std::uint64_t count) { length_ += count; }
    void endLine() {
        const std::uint64_t rows = length_ / 64;
        total_ += 1 + rows * rows / 8;
        length_ = 0;
    }
    std::uint64_t total() const { return total_; }

private:
    std::uint64_t length_ = 0;
    std::uint64_t total_ = 0;
};

/// The most that Wine's control shows within minutes, and in the memory that a program of this width may have.
inline constexpr std::uint64_t mostInWine = sizeof(void*) == 8 ? 1'000'000 : 400'000;

/// The most that the control of this machine shows: for the system's own, whatever fits a file.
std::uint64_t mostTextCost();

}  // namespace calquo
