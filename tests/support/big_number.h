// Slow and simple whole numbers of any size, as the independent reference for exact reading and writing.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace calquo {

/// Digits of a whole number in a base, lowest first; every operation is the pencil-and-paper one.
class BigNumber {
public:
    BigNumber(std::uint64_t number, std::uint32_t numericBase) : base(numericBase) {
        for (; number != 0; number /= base) {
            digits.push_back(static_cast<std::uint32_t>(number % base));
        }
    }

    void multiplyBy(std::uint32_t factor) { addAndCarry(factor, 0); }

    void increment() { addAndCarry(1, 1); }

    void decrement() {
        auto digit = digits.begin();
        for (; *digit == 0; ++digit) {
            *digit = base - 1;
        }
        --*digit;
        trim();
    }

    /// Divides by 2 and returns the remainder.
    std::uint32_t halve() {
        std::uint32_t remainder = 0;
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
            const std::uint32_t whole = remainder * base + *digit;
            *digit = whole / 2;
            remainder = whole % 2;
        }
        trim();
        return remainder;
    }

    [[nodiscard]] std::string text() const {
        std::string result;
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
            result += "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[*digit];
        }
        return result;
    }

private:
    void addAndCarry(std::uint32_t factor, std::uint32_t carry) {
        for (std::uint32_t& digit : digits) {
            carry += digit * factor;
            digit = carry % base;
            carry /= base;
        }
        for (; carry != 0; carry /= base) {
            digits.push_back(carry % base);
        }
    }

    void trim() {
        while (!digits.empty() && digits.back() == 0) {
            digits.pop_back();
        }
    }

    std::uint32_t base;
    std::vector<std::uint32_t> digits;
};

}  // namespace calquo
