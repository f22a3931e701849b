// A value as text, under a format word and an output base.
#pragma once

#include <cstdint>
#include <string>

#include "format/numeric_format.h"
#include "values/value.h"

namespace calquo {

/// Appends one real number in the kind of the word. Digits are exact, rounded half away from zero at the last one
/// shown. In a base other than 10 every number carries its base prefix. Infinities and NaNs are words in every kind.
/// @param outputBase 2 to 36
void FormatReal(Real x, NumericFormat word, std::uint32_t outputBase, std::string& text);

/// Appends a value: a real number, or "(re; im)" with the characters that the lexer reads. Whatever a kind writes
/// without loss reads back as the same value while the groups of its word are allowed, but for -inf, which the language
/// refuses to negate, and mixed numbers ("2 3/4").
/// @param outputBase 2 to 36; 0 stands for 10
void appendValue(const Value& value, NumericFormat word, std::uint64_t outputBase, std::string& text);

/// Appends a value as appendValue does, with as many significant digits as each of its parts needs to be read back as
/// the same, but no more than 31, and without taking small numbers for 0. In fixed point the range is smaller, so that
/// no digit falls off.
/// @param word of a kind with a limit on significant digits: Automatic or Scientific
void appendValueInFull(const Value& value, NumericFormat word, std::uint64_t outputBase, std::string& text);

/// The text that appendValue appends.
std::string FormatValue(const Value& value, NumericFormat word, std::uint64_t outputBase);

}  // namespace calquo
