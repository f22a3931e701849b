// What the targets share. A target is a property that holds for any input whatever, in a file of its own in the folder
// "targets"; what the fuzzers have found for it is in corpus/NAME.txt.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace calquo {

using FuzzInput = std::span<const std::uint8_t>;

/// One property under its name. Each target is an object of this class in a file of its own.
class Target {
public:
    using Check = void (*)(FuzzInput input);

    /// `check` holds one input against the property; a fault ends the program. `name` is that of the file.
    Target(std::string_view name, Check check) noexcept;

    /// The target of a name; ends the program with status 2 when there is none.
    static const Target& find(std::string_view name);

    void run(FuzzInput input) const;

private:
    std::string_view name_;
    Check check_;
    const Target* next_;
};

/// How many inputs have been held against a property so far.
std::uint64_t executions();

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

    bool isAtEnd() const { return rest_.empty(); }
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
    /// All that is left, which stays to be taken.
    std::string text() const { return {rest_.begin(), rest_.end()}; }
    /// What comes before the next byte `end`, or all that is left.
    std::string textUntil(std::uint8_t end) {
        const auto found = std::ranges::find(rest_, end);
        std::string taken(rest_.begin(), found);
        rest_ = rest_.subspan(std::min(taken.size() + 1, rest_.size()));
        return taken;
    }

private:
    FuzzInput rest_;
};

}  // namespace calquo
