// Values read as 64-bit words, for the functions on bits and on whole numbers.
#pragma once

#include <cstdint>

#include "numeric/checks.h"
#include "values/value.h"

namespace calquo {

/// The largest unsigned word and the bounds of the signed ones, as extended numbers.
constexpr Real largestUnsignedWord = 18446744073709551615.0L;
constexpr Real largestSignedWord = 9223372036854775807.0L;
constexpr Real smallestSignedWord = -9223372036854775808.0L;

/// The checks that most callers want: whole numbers only.
constexpr CheckFlags wholeWord = CheckFlags::Report | CheckFlags::NoFraction;

/// The value as an unsigned word, a fraction cut off. Raises, in this order: 11 for an imaginary part; 6 above 2^64 - 1
/// and for a NaN; 12 for a fraction under NoFraction; 13 below 0, whatever the flags; 14 for 0 under NoZero; 15 for 1
/// under NoOne. Report is taken as set. The error points at the end of the value's literal.
std::uint64_t toUnsignedWord(const Value& v, CheckFlags flags = wholeWord);

/// The value as a signed word, likewise; 6 outside -2^63 to 2^63 - 1, negative numbers only refused under NoNegative.
std::int64_t toSignedWord(const Value& v, CheckFlags flags = wholeWord);

/// The word as a real value, exactly; a set top bit is 2^63, never a sign.
inline Value fromWord(std::uint64_t word) { return {static_cast<Real>(word)}; }

}  // namespace calquo
