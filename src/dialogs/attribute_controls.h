// What the dialog of a format edits: its attributes in order, the values that it works on, and whatever can be wrong
// with a number that a person types.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "format/attributes.h"

namespace calquo {

/// The attributes of a kind, in the order of its dialog.
std::vector<const Attribute*> attributesOf(FormatKind kind);

/// The range of an attribute in words: "a whole number from 2 to 8".
std::string rangeInWords(const Attribute& attribute);

/// A number as a person has typed it: its value, or what is wrong with it.
struct TypedNumber {
    std::optional<std::uint32_t> value;
    std::string fault;  ///< A sentence that names the attribute and its range; empty when there is a value.
};

/// Reads a whole number within the range of an attribute; blanks around it do not matter.
TypedNumber readNumber(const Attribute& attribute, std::string_view typed);

/// A sentence that says why a value within its range cannot be kept: the field is too narrow for it. Empty when it can.
std::string widthFault(const Attribute& attribute, std::uint32_t value);

/// The values of a format word taken apart, to be changed one by one and written back together.
class WorkingValues {
public:
    explicit WorkingValues(NumericFormat word);

    std::uint32_t get(const Attribute& attribute) const;
    /// Takes any number; for an attribute that is on or off, 1 or 0.
    void set(const Attribute& attribute, std::uint32_t value);

    /// Writes the values to a word: the group size, then the truncation of an Integer word or else the digits, the
    /// significant digits, the exponent limit, and the flags. Raises 5 ("internal fault") at the first that does not
    /// fit its field; those ahead of it stay written.
    void applyTo(NumericFormat& word) const;

private:
    std::uint32_t groupSize_;
    std::uint32_t digits_;
    std::uint32_t truncation_;
    std::uint32_t significantDigits_;
    std::uint32_t exponentLimit_;
    std::uint32_t flags_;

    /// The number that a field holds; null for the fields of the flags.
    static std::uint32_t WorkingValues::*numberIn(NumericFormat field);
};

}  // namespace calquo
