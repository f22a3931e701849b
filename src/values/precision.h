// The precision of the x87 unit, which foreign code in the process (a file dialog's extension, say) may have lowered.
#pragma once

#include <cstdint>

namespace calquo {

/// Computes with 64-bit mantissas and rounds to nearest while it lives, and puts back what was set before.
class FullPrecision {
public:
    FullPrecision() {
        asm volatile("fnstcw %0" : "=m"(before_));
        if ((before_ & controlled) != extendedToNearest) {
            load(static_cast<std::uint16_t>((before_ & ~controlled) | extendedToNearest));
        }
    }
    ~FullPrecision() {
        if ((before_ & controlled) != extendedToNearest) {
            load(before_);
        }
    }
    FullPrecision(const FullPrecision&) = delete;
    FullPrecision& operator=(const FullPrecision&) = delete;

private:
    // Bits of the control word: 8 and 9 are the precision, 10 and 11 the rounding.
    static constexpr std::uint16_t controlled = 0x0F00;
    static constexpr std::uint16_t extendedToNearest = 0x0300;

    static void load(std::uint16_t word) { asm volatile("fldcw %0" : : "m"(word)); }

    std::uint16_t before_ = 0;
};

}  // namespace calquo
