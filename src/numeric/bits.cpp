// Bit functions: both operands to words, the operation, the word back to a value.
#include "numeric/bits.h"

#include <cstdint>

#include "numeric/words.h"

namespace calquo {
namespace {

constexpr int wordWidth = 64;

template <typename Operation>
Value combine(const Value& a, const Value& b, Operation operation) {
    const std::uint64_t left = toUnsignedWord(a);
    const std::uint64_t right = toUnsignedWord(b);
    return fromWord(operation(left, right)).at(b.positions);
}

std::uint64_t shiftRight(std::uint64_t word, std::int64_t count) {
    if (count <= -wordWidth || count >= wordWidth) {
        return 0;
    }
    return count >= 0 ? word >> count : word << -count;
}

}  // namespace

Value bNot(const Value& a) { return fromWord(~toUnsignedWord(a)).at(a.positions); }

Value bAnd(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return x & y; });
}

Value bOr(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return x | y; });
}

Value bXor(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return x ^ y; });
}

Value bNand(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return ~(x & y); });
}

Value bNor(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return ~(x | y); });
}

Value bEq(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return ~(x ^ y); });
}

Value bImp(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return ~x | y; });
}

Value bInh(const Value& a, const Value& b) {
    return combine(a, b, [](std::uint64_t x, std::uint64_t y) { return x & ~y; });
}

Value bKeep(const Value& a, const Value& count) {
    const std::uint64_t word = toUnsignedWord(a);
    const std::uint64_t kept = toUnsignedWord(count);
    return fromWord(kept >= wordWidth ? word : word & ~(~std::uint64_t{0} << kept)).at(a.positions);
}

Value bShift(const Value& a, const Value& count) {
    const std::uint64_t word = toUnsignedWord(a);
    return fromWord(shiftRight(word, toSignedWord(count))).at(a.positions);
}

}  // namespace calquo
