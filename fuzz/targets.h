// What the targets share. A target is a property that holds for any input whatever, in a file of its own that is named
// as its corpus is.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace calquo {

using FuzzInput = std::span<const std::uint8_t>;

/// Holds one input against the target's property; a fault ends the program. Each target's file defines its own.
void check(FuzzInput input);

/// Says what is wrong and aborts.
[[noreturn]] void reportFault(const std::string& fault);

/// Ends the program with `fault` unless `holds`.
inline void require(bool holds, const char* fault) {
    if (!holds) {
        reportFault(fault);
    }
}

/// Takes values from the front of an input; from one that is used up come zeros.
class InputReader {
public:
    explicit InputReader(FuzzInput input) : rest_(input) {}

    std::uint8_t byte() {
        const std::uint8_t first = rest_.empty() ? 0 : rest_.front();
        rest_ = rest_.subspan(rest_.empty() ? 0 : 1);
        return first;
    }
    /// A number of `bytes` bytes, the lowest first.
    std::uint64_t number(int bytes) {
        std::uint64_t value = 0;
        for (int i = 0; i < bytes; ++i) {
            value |= std::uint64_t{byte()} << 8 * i;
        }
        return value;
    }
    /// From low to high.
    std::uint32_t between(std::uint32_t low, std::uint32_t high) {
        return low + static_cast<std::uint32_t>(number(4) % (high - low + 1));
    }
    /// `size` bytes, or as many as there are.
    FuzzInput bytes(std::size_t size) {
        const FuzzInput taken = rest_.first(std::min(size, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }
    std::string text() const { return {rest_.begin(), rest_.end()}; }

private:
    FuzzInput rest_;
};

}  // namespace calquo
