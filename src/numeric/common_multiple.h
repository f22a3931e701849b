// The least common multiple of long lists of words.
#pragma once

#include <cstdint>
#include <span>

namespace calquo {

/// The least common multiple of odd words modulo 2^64; 1 when there are none. Time grows with n log^2 n for n words.
std::uint64_t oddCommonMultiple(std::span<const std::uint64_t> words);

}  // namespace calquo
