// Whole powers of a numeric base, as far as a word holds them.
#pragma once

#include <cstdint>
#include <optional>

namespace calquo {

/// base^exponent for a base of 2 and above and an exponent of 0 and above; nothing where it passes the largest word.
template <typename Word = std::uint64_t>
constexpr std::optional<Word> wordPower(std::uint32_t base, std::uint64_t exponent) {
    Word power = 1;
    for (; exponent != 0; --exponent) {
        if (power > static_cast<Word>(-1) / base) {
            return std::nullopt;
        }
        power *= base;
    }
    return power;
}

}  // namespace calquo
