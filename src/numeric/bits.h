// The bit functions of the language: operands and results are unsigned 64-bit words.
// Every operand must be real (11), at most 2^64 - 1 (6), whole (12) and not negative (13), the left one checked first.
#pragma once

#include "values/value.h"

namespace calquo {

/// NOT a, over all 64 bits. Carries a's positions.
Value bNot(const Value& a);

/// a AND b, a OR b, a XOR b, and the complements of the first two. These and the next three carry b's positions.
Value bAnd(const Value& a, const Value& b);
Value bOr(const Value& a, const Value& b);
Value bXor(const Value& a, const Value& b);
Value bNand(const Value& a, const Value& b);
Value bNor(const Value& a, const Value& b);

/// 1 in each bit where a and b agree.
Value bEq(const Value& a, const Value& b);

/// The implication a -> b of each bit: (NOT a) OR b.
Value bImp(const Value& a, const Value& b);

/// The bits of a that b does not inhibit: a AND (NOT b).
Value bInh(const Value& a, const Value& b);

/// The lowest `count` bits of a; a itself for a count above 63. Carries a's positions.
Value bKeep(const Value& a, const Value& count);

/// a shifted right by `count` bits, deliberately left for a negative count; bits shifted out are lost. The count is a
/// signed word (6 outside its range, negative allowed). Carries a's positions.
Value bShift(const Value& a, const Value& count);

}  // namespace calquo
